#pragma once

#include "AxMovingObjectParameters.h"

/// An aircraft that flies by its wings. Its supports are the nose gear, the other one, and the gears under both wings.
class ZEDOBJPARAM_API AxFixedWingEntityParameters
    : public AxObjectRecordOf<AxFixedWingEntityParameters, AxMovingObjectParameters, "fixed-wing-entity-param">
{
public:
    AxFixedWingEntityParameters(AxSymbolString name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
                                AxEnvValuePtr const* node = nullptr);
    ~AxFixedWingEntityParameters() override;

    virtual double minSpeed() const { return myMinSpeed; }
    virtual void setMinSpeed(double speed) { assignSpecified(myMinSpeed, speed); }
    virtual double maxAltitude() const { return myMaxAltitude; }
    virtual void setMaxAltitude(double metres) { assignSpecified(myMaxAltitude, metres); }
    virtual double maxClimbRate() const { return myMaxClimbRate; }
    virtual void setMaxClimbRate(double rate) { assignSpecified(myMaxClimbRate, rate); }
    virtual double maxYawRate() const { return myMaxYawRate; }
    virtual void setMaxYawRate(double rate) { assignSpecified(myMaxYawRate, rate); }
    virtual double maxPitchRate() const { return myMaxPitchRate; }
    virtual void setMaxPitchRate(double rate) { assignSpecified(myMaxPitchRate, rate); }
    virtual double maxRollRate() const { return myMaxRollRate; }
    virtual void setMaxRollRate(double rate) { assignSpecified(myMaxRollRate, rate); }
    virtual double flapsDeceleration() const { return myFlapsDeceleration; }
    virtual void setFlapsDeceleration(double deceleration) { assignSpecified(myFlapsDeceleration, deceleration); }
    virtual double orderedGroundSpeed() const { return myOrderedGroundSpeed; }
    virtual void setOrderedGroundSpeed(double speed) { assignSpecified(myOrderedGroundSpeed, speed); }
    virtual double maxGroundSpeed() const { return myMaxGroundSpeed; }
    virtual void setMaxGroundSpeed(double speed) { assignSpecified(myMaxGroundSpeed, speed); }
    virtual double maxGroundStoppingDeceleration() const { return myMaxGroundStoppingDeceleration; }
    virtual void setMaxGroundStoppingDeceleration(double deceleration)
    {
        assignSpecified(myMaxGroundStoppingDeceleration, deceleration);
    }
    virtual double groundTurningRadius() const { return myGroundTurningRadius; }
    virtual void setGroundTurningRadius(double radius) { assignSpecified(myGroundTurningRadius, radius); }
    virtual double maxGroundSlope() const { return myMaxGroundSlope; }
    virtual void setMaxGroundSlope(double slope) { assignSpecified(myMaxGroundSlope, slope); }
    virtual double onGroundTolerance() const { return myOnGroundTolerance; }
    virtual void setOnGroundTolerance(double metres) { assignSpecified(myOnGroundTolerance, metres); }
    virtual bool onGround() const { return myOnGround; }
    virtual void setOnGround(bool starts) { assignSpecified(myOnGround, starts); }

    /// The defaults of aircraft for what all moving objects have. The constructor calls it.
    virtual void setDefaults();

protected:
    AxFixedWingEntityParameters(AxFixedWingEntityParameters const& other, AxSymbolString name,
                                AxReaderWriterRegistry* parent)
        : AxFixedWingEntityParameters(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }

private:
    AxRwReal myMinSpeed{{"min-speed", "m/s", "Smallest speed in flight.", {0.0, axUnbounded}}, 100.0, registry()};
    AxRwReal myMaxAltitude{{"max-altitude", "m", "Largest altitude.", {0.0, axUnbounded}}, 12000.0, registry()};
    AxRwReal myMaxClimbRate{
        {"max-climb-rate", "m/s", "Largest vertical speed upward.", {0.0, axUnbounded}}, 150.0, registry()};
    AxRwReal myMaxYawRate{
        {"max-yaw-rate", "rad/s", "Largest rate of yaw.", {0.0, axUnbounded}}, 0.7853981633974483, registry()};
    AxRwReal myMaxPitchRate{
        {"max-pitch-rate", "rad/s", "Largest rate of pitch.", {0.0, axUnbounded}}, 0.7853981633974483, registry()};
    AxRwReal myMaxRollRate{
        {"max-roll-rate", "rad/s", "Largest rate of roll.", {0.0, axUnbounded}}, 1.0471975511965976, registry()};
    AxRwReal myFlapsDeceleration{
        {"flaps-deceleration", "m/s2", "Deceleration by flaps.", {0.0, axUnbounded}}, 10.0, registry()};
    AxRwReal myOrderedGroundSpeed{
        {"ordered-ground-speed", "m/s", "Speed of taxiing unless one is ordered.", {0.0, axUnbounded}},
        10.0,
        registry()};
    AxRwReal myMaxGroundSpeed{
        {"max-ground-speed", "m/s", "Largest speed on the ground.", {0.0, axUnbounded}}, 200.0, registry()};
    AxRwReal myMaxGroundStoppingDeceleration{
        {"max-ground-stopping-deceleration", "m/s2", "Largest deceleration on the ground.", {0.0, axUnbounded}},
        4.5,
        registry()};
    AxRwReal myGroundTurningRadius{
        {"ground-turning-radius", "m", "Smallest radius of a turn on the ground.", {0.0, axUnbounded}},
        5.0,
        registry()};
    AxRwReal myMaxGroundSlope{{"max-ground-slope",
                               "rise over run",
                               "Steepest slope that is taxied over; 1.0: 45 degrees.",
                               {0.0, axUnbounded}},
                              1.0,
                              registry()};
    AxRwReal myOnGroundTolerance{
        {"on-ground-tolerance", "m", "Height above ground up to which it counts as on it.", {0.0, axUnbounded}},
        10.0,
        registry()};
    AxRwBoolean myOnGround{{"on-ground", "", "Whether the aircraft starts on the ground."}, registry()};
};
