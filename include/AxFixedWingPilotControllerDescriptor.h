#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// Flies a fixed-wing aircraft to a point in the air and taxis it on the ground. Base of the orbit, fly-into and
/// follow controllers.
class ZEDOBJPARAM_API AxFixedWingPilotControllerDescriptor
    : public AxDescriptorOf<AxFixedWingPilotControllerDescriptor, AxComponentDescriptor,
                            "fixed-wing-pilot-controller-descriptor">
{
public:
    AxFixedWingPilotControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxFixedWingPilotControllerDescriptor(AxFixedWingPilotControllerDescriptor const& other,
                                         AxReaderWriterRegistry* registry)
        : AxFixedWingPilotControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxFixedWingPilotControllerDescriptor() override;

    virtual double maxTurnrateCutoffAngle() const { return myMaxTurnrateCutoffAngle; }
    virtual void setMaxTurnrateCutoffAngle(double angle) { assignSpecified(myMaxTurnrateCutoffAngle, angle); }
    virtual double maxTaxiingTurnSpeed() const { return myMaxTaxiingTurnSpeed; }
    virtual void setMaxTaxiingTurnSpeed(double speed) { assignSpecified(myMaxTaxiingTurnSpeed, speed); }
    virtual double maxPitchAngle() const { return myMaxPitchAngle; }
    virtual void setMaxPitchAngle(double angle) { assignSpecified(myMaxPitchAngle, angle); }
    virtual double atTime() const { return myAtTime; }
    virtual void setAtTime(double time) { assignSpecified(myAtTime, time); }
    virtual double nearTime() const { return myNearTime; }
    virtual void setNearTime(double time) { assignSpecified(myNearTime, time); }
    virtual double taxiingAtDistance() const { return myTaxiingAtDistance; }
    virtual void setTaxiingAtDistance(double distance) { assignSpecified(myTaxiingAtDistance, distance); }
    virtual double taxiingNearDistance() const { return myTaxiingNearDistance; }
    virtual void setTaxiingNearDistance(double distance) { assignSpecified(myTaxiingNearDistance, distance); }
    virtual double taxiingApproachSpeed() const { return myTaxiingApproachSpeed; }
    virtual void setTaxiingApproachSpeed(double speed) { assignSpecified(myTaxiingApproachSpeed, speed); }
    virtual double timeToTargetAltitude() const { return myTimeToTargetAltitude; }
    virtual void setTimeToTargetAltitude(double time) { assignSpecified(myTimeToTargetAltitude, time); }

private:
    AxRwReal myMaxTurnrateCutoffAngle{{"max-turnrate-cutoff-angle", "rad",
                                       "Heading error below which the aircraft turns less than it could.", axHalfTurn},
                                      axRadians(15.0),
                                      registry()};
    AxRwReal myMaxTaxiingTurnSpeed{
        {"max-taxiing-turn-speed", "m/s", "Speed to which taxiing is slowed in turns.", axNotNegative},
        5.0,
        registry()};
    AxRwReal myMaxPitchAngle{{"max-pitch-angle", "rad", "Steepest climb or dive, from level flight.", axQuarterTurn},
                             axRadians(30.0),
                             registry()};
    AxRwReal myAtTime{
        {"at-time", "s", "Time of flight from a point at which it counts as reached.", axNotNegative}, 1.0, registry()};
    AxRwReal myNearTime{{"near-time", "s", "Time of flight from a point at which its approach begins.", axNotNegative},
                        5.0,
                        registry()};
    AxRwReal myTaxiingAtDistance{
        {"taxiing-at-distance", "m", "Distance at which a taxiing destination counts as reached.", axNotNegative},
        2.0,
        registry()};
    AxRwReal myTaxiingNearDistance{{"taxiing-near-distance", "m",
                                    "Distance to a taxiing destination at which approach speed is taken.",
                                    axNotNegative},
                                   20.0,
                                   registry()};
    AxRwReal myTaxiingApproachSpeed{
        {"taxiing-approach-speed", "m/s", "Speed of the last stretch of taxiing.", axNotNegative}, 3.0, registry()};
    AxRwReal myTimeToTargetAltitude{{"time-to-target-altitude", "s",
                                     "Time in which a change of altitude is flown, within the pitch limit.",
                                     axNotNegative},
                                    10.0,
                                    registry()};
};
