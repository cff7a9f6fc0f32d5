#pragma once

#include "AxRecordOf.h"
#include "AxRwObjectType.h"
#include "AxRwReal.h"

/// By how much an object of a type must change before it is reported anew: metres or seconds, as the list says.
class ZEDOBJPARAM_API AxRwSpotReportDeltaCheck : public AxRecordOf<AxRwSpotReportDeltaCheck, "AxRwSpotReportDeltaCheck">
{
public:
    using AxRecordOf::AxRecordOf;
    /// Named "delta-check", as the elements of a list are.
    AxRwSpotReportDeltaCheck() : AxRecordOf("delta-check", nullptr) {}
    ~AxRwSpotReportDeltaCheck() override;

    virtual AxObjectType const& objectType() const { return myObjectType.value(); }
    virtual void setObjectType(AxObjectType const& type) { assignSpecified(myObjectType, type); }
    virtual double delta() const { return myDelta; }
    virtual void setDelta(double delta) { assignSpecified(myDelta, delta); }

private:
    AxRwObjectType myObjectType{{"object-type", "", "The object type or pattern this check is for."}, registry()};
    AxRwReal myDelta{{"delta", "", "Least change; metres or seconds by the list.", {0.0, axUnbounded}}, registry()};
};
