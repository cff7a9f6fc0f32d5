#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Moves ships and boats on the water, and sinks them when they are destroyed.
class ZEDOBJPARAM_API AxSurfaceEntityActuatorDescriptor
    : public AxDescriptorOf<AxSurfaceEntityActuatorDescriptor, AxActuatorComponentDescriptor,
                            "surface-entity-component-descriptor">
{
public:
    AxSurfaceEntityActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSurfaceEntityActuatorDescriptor(AxSurfaceEntityActuatorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxSurfaceEntityActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxSurfaceEntityActuatorDescriptor() override;

    virtual double maxYawAcceleration() const { return myMaxYawAcceleration; }
    virtual void setMaxYawAcceleration(double acceleration) { assignSpecified(myMaxYawAcceleration, acceleration); }
    virtual double maxYawRate() const { return myMaxYawRate; }
    virtual void setMaxYawRate(double rate) { assignSpecified(myMaxYawRate, rate); }
    virtual bool checkSoilType() const { return myCheckSoilType; }
    virtual void setCheckSoilType(bool check) { assignSpecified(myCheckSoilType, check); }
    virtual double stoppingSpeed() const { return myStoppingSpeed; }
    virtual void setStoppingSpeed(double speed) { assignSpecified(myStoppingSpeed, speed); }
    virtual double turnRollRate() const { return myTurnRollRate; }
    virtual void setTurnRollRate(double rate) { assignSpecified(myTurnRollRate, rate); }
    virtual double speedPitchRate() const { return mySpeedPitchRate; }
    virtual void setSpeedPitchRate(double rate) { assignSpecified(mySpeedPitchRate, rate); }
    virtual double sinkingTime() const { return mySinkingTime; }
    virtual void setSinkingTime(double time) { assignSpecified(mySinkingTime, time); }

private:
    AxRwReal myMaxYawAcceleration{
        {"max-yaw-acceleration", "rad/s2", "Fastest change of the turn.", axNotNegative}, 0.01, registry()};
    AxRwReal myMaxYawRate{
        {"max-yaw-rate", "rad/s", "Fastest turn of the hull.", axNotNegative}, axRadians(3.0), registry()};
    AxRwBoolean myCheckSoilType{
        {"check-soil-type", "", "Whether the hull stops where the ground is not water."}, true, registry()};
    AxRwReal myStoppingSpeed{
        {"stopping-speed", "m/s", "Speed below which the hull is taken to lie still.", axNotNegative}, 0.5, registry()};
    AxRwReal myTurnRollRate{{"turn-roll-rate", "rad/(rad/s)", "Heel per rate of turn; 0: stays upright."}, registry()};
    AxRwReal mySpeedPitchRate{{"speed-pitch-rate", "rad/(m/s)", "Rise of the bow per speed; 0: stays level."},
                              registry()};
    AxRwReal mySinkingTime{{"sinking-time", "s", "Time from destruction until the hull is under water.", axNotNegative},
                           600.0,
                           registry()};
};
