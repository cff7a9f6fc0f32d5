#pragma once

#include "AxRecordOf.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// How one kind of soil changes what a vehicle can do: multipliers of its largest speed, acceleration and deceleration.
class ZEDOBJPARAM_API AxSoilFactors : public AxRecordOf<AxSoilFactors, "AxSoilFactors">
{
public:
    using AxRecordOf::AxRecordOf;
    AxSoilFactors();
    AxSoilFactors(AxSoilFactors const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxSoilFactors() override;
    AxSoilFactors& operator=(AxSoilFactors const& other);

    AxString const& soilType() const { return mySoilType.value(); }
    void setSoilType(AxString const& type) { assignSpecified(mySoilType, type); }
    double maxSpeedFactor() const { return myMaxSpeedFactor.value(); }
    void setMaxSpeedFactor(double factor) { assignSpecified(myMaxSpeedFactor, factor); }
    double maxAccelerationFactor() const { return myMaxAccelerationFactor.value(); }
    void setMaxAccelerationFactor(double factor) { assignSpecified(myMaxAccelerationFactor, factor); }
    double maxDecelerationFactor() const { return myMaxDecelerationFactor.value(); }
    void setMaxDecelerationFactor(double factor) { assignSpecified(myMaxDecelerationFactor, factor); }

    /// What the factors of a list are called in text.
    static AxSymbolString elementWord();

private:
    AxRwString mySoilType{{"soil-type", "", "Kind of soil."}, registry()};
    AxRwReal myMaxSpeedFactor{
        {"max-speed-factor", "", "Multiplier of the largest speed.", {0.0, axUnbounded}}, 1.0, registry()};
    AxRwReal myMaxAccelerationFactor{
        {"max-acceleration-factor", "", "Multiplier of the largest acceleration.", {0.0, axUnbounded}},
        1.0,
        registry()};
    AxRwReal myMaxDecelerationFactor{
        {"max-deceleration-factor", "", "Multiplier of the largest deceleration.", {0.0, axUnbounded}},
        1.0,
        registry()};
};
