#pragma once

#include "AxObjectRecordOf.h"

/// Weather, light and time of the whole scenario.
class ZEDOBJPARAM_API AxGlobalEnvironmentParameters
    : public AxObjectRecordOf<AxGlobalEnvironmentParameters, AxZedObjectParameters, "global-environment-param">
{
public:
    using AxObjectRecordOf::AxObjectRecordOf;
    ~AxGlobalEnvironmentParameters() override;

    virtual double sendRepositoryUpdateWhenTimeChangedBySeconds() const
    {
        return mySendRepositoryUpdateWhenTimeChangedBySeconds;
    }
    virtual void setSendRepositoryUpdateWhenTimeChangedBySeconds(double seconds)
    {
        assignSpecified(mySendRepositoryUpdateWhenTimeChangedBySeconds, seconds);
    }

protected:
    AxGlobalEnvironmentParameters(AxGlobalEnvironmentParameters const& other, AxSymbolString name,
                                  AxReaderWriterRegistry* parent)
        : AxGlobalEnvironmentParameters(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }

private:
    AxRwReal mySendRepositoryUpdateWhenTimeChangedBySeconds{
        {"send-repository-update-when-time-changed-by-seconds",
         "s",
         "Change of the simulated time at which the state is sent anew.",
         {0.0, axUnbounded}},
        60.0,
        registry()};
};
