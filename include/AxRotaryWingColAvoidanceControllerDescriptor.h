#pragma once

#include "AxDescriptorOf.h"
#include "AxRotaryWingTaskDescriptor.h"
#include "AxRwReal.h"

/// Steers a helicopter clear of aircraft and obstacles in its way.
class ZEDOBJPARAM_API AxRotaryWingColAvoidanceControllerDescriptor
    : public AxDescriptorOf<AxRotaryWingColAvoidanceControllerDescriptor, AxRotaryWingTaskDescriptor,
                            "rot-wing-collision-avoidance-controller-descriptor">
{
public:
    AxRotaryWingColAvoidanceControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxRotaryWingColAvoidanceControllerDescriptor(AxRotaryWingColAvoidanceControllerDescriptor const& other,
                                                 AxReaderWriterRegistry* registry)
        : AxRotaryWingColAvoidanceControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxRotaryWingColAvoidanceControllerDescriptor() override;

    virtual double nominalDistance() const { return myNominalDistance; }
    virtual void setNominalDistance(double distance) { assignSpecified(myNominalDistance, distance); }
    virtual double searchDistance() const { return mySearchDistance; }
    virtual void setSearchDistance(double distance) { assignSpecified(mySearchDistance, distance); }
    virtual double collisionLimit() const { return myCollisionLimit; }
    virtual void setCollisionLimit(double limit) { assignSpecified(myCollisionLimit, limit); }
    virtual double clearingDistance() const { return myClearingDistance; }
    virtual void setClearingDistance(double distance) { assignSpecified(myClearingDistance, distance); }
    virtual double timeToMinimumDistance() const { return myTimeToMinimumDistance; }
    virtual void setTimeToMinimumDistance(double time) { assignSpecified(myTimeToMinimumDistance, time); }
    virtual double driftingSpeed() const { return myDriftingSpeed; }
    virtual void setDriftingSpeed(double speed) { assignSpecified(myDriftingSpeed, speed); }
    virtual double minimumDivingAltitude() const { return myMinimumDivingAltitude; }
    virtual void setMinimumDivingAltitude(double altitude) { assignSpecified(myMinimumDivingAltitude, altitude); }

private:
    AxRwReal myNominalDistance{
        {"nominal-distance", "m", "Distance that is kept from others in flight.", axNotNegative}, 100.0, registry()};
    AxRwReal mySearchDistance{
        {"search-distance", "m", "Distance within which others are watched.", axNotNegative}, 300.0, registry()};
    AxRwReal myCollisionLimit{
        {"collision-limit", "m", "Predicted distance below which a collision is assumed.", axNotNegative},
        20.0,
        registry()};
    AxRwReal myClearingDistance{
        {"clearing-distance", "m", "Distance at which an avoided obstacle is left behind.", axNotNegative},
        50.0,
        registry()};
    AxRwReal myTimeToMinimumDistance{
        {"time-to-minimum-distance", "s", "Time to the closest approach within which it is avoided.", axNotNegative},
        5.0,
        registry()};
    AxRwReal myDriftingSpeed{
        {"drifting-speed", "m/s", "Sideways speed of an evasion.", axNotNegative}, 5.0, registry()};
    AxRwReal myMinimumDivingAltitude{
        {"minimum-diving-altitude", "m", "Height above ground below which no evasion goes down.", axNotNegative},
        30.0,
        registry()};
};
