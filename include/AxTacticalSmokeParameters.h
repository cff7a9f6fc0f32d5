#pragma once

#include "AxObjectRecordOf.h"

/// A cloud of smoke.
class ZEDOBJPARAM_API AxTacticalSmokeParameters
    : public AxObjectRecordOf<AxTacticalSmokeParameters, AxZedObjectParameters, "tactical-smoke-param">
{
public:
    using AxObjectRecordOf::AxObjectRecordOf;
    ~AxTacticalSmokeParameters() override;

    virtual double drDensityThreshold() const { return myDrDensityThreshold; }
    virtual void setDrDensityThreshold(double threshold) { assignSpecified(myDrDensityThreshold, threshold); }
    virtual double drSigmaThreshold() const { return myDrSigmaThreshold; }
    virtual void setDrSigmaThreshold(double threshold) { assignSpecified(myDrSigmaThreshold, threshold); }

protected:
    AxTacticalSmokeParameters(AxTacticalSmokeParameters const& other, AxSymbolString name,
                              AxReaderWriterRegistry* parent)
        : AxTacticalSmokeParameters(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }

private:
    AxRwReal myDrDensityThreshold{
        {"dr-density-threshold", "", "Error of the density at which the state is sent anew.", {0.0, axUnbounded}},
        1.0,
        registry()};
    AxRwReal myDrSigmaThreshold{
        {"dr-sigma-threshold", "", "Error of the spread at which the state is sent anew.", {0.0, axUnbounded}},
        1.0,
        registry()};
};
