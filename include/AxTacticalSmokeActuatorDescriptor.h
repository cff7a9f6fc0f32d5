#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// The life of a smoke cloud: it grows to its full size, then thins out and vanishes.
class ZEDOBJPARAM_API AxTacticalSmokeActuatorDescriptor
    : public AxDescriptorOf<AxTacticalSmokeActuatorDescriptor, AxActuatorComponentDescriptor,
                            "tactical-smoke-actuator-descriptor">
{
public:
    AxTacticalSmokeActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxTacticalSmokeActuatorDescriptor(AxTacticalSmokeActuatorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxTacticalSmokeActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxTacticalSmokeActuatorDescriptor() override;

    virtual double dissipationTime() const { return myDissipationTime; }
    virtual void setDissipationTime(double time) { assignSpecified(myDissipationTime, time); }
    virtual double growthRate() const { return myGrowthRate; }
    virtual void setGrowthRate(double rate) { assignSpecified(myGrowthRate, rate); }
    virtual double maxRadius() const { return myMaxRadius; }
    virtual void setMaxRadius(double radius) { assignSpecified(myMaxRadius, radius); }

private:
    AxRwReal myDissipationTime{
        {"dissipation-time", "s", "Time until the cloud is gone.", axNotNegative}, 120.0, registry()};
    AxRwReal myGrowthRate{
        {"growth-rate", "m/s", "Speed at which the cloud's radius grows.", axNotNegative}, 1.0, registry()};
    AxRwReal myMaxRadius{
        {"max-radius", "m", "Radius at which the cloud stops growing.", axNotNegative}, 20.0, registry()};
};
