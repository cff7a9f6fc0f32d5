#pragma once

#include "AxMovingObjectParameters.h"

/// An aircraft that flies by its rotors. Lift accelerations are positive upward.
class ZEDOBJPARAM_API AxRotaryWingEntityParameters
    : public AxObjectRecordOf<AxRotaryWingEntityParameters, AxMovingObjectParameters, "rotary-wing-entity-param">
{
public:
    AxRotaryWingEntityParameters(AxSymbolString name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
                                 AxEnvValuePtr const* node = nullptr);
    ~AxRotaryWingEntityParameters() override;

    virtual double maxAltitude() const { return myMaxAltitude; }
    virtual void setMaxAltitude(double metres) { assignSpecified(myMaxAltitude, metres); }
    virtual bool joystickControl() const { return myJoystickControl; }
    virtual void setJoystickControl(bool controls) { assignSpecified(myJoystickControl, controls); }
    virtual bool terrainCheck() const { return myTerrainCheck; }
    virtual void setTerrainCheck(bool checks) { assignSpecified(myTerrainCheck, checks); }
    virtual double maxClimbRate() const { return myMaxClimbRate; }
    virtual void setMaxClimbRate(double rate) { assignSpecified(myMaxClimbRate, rate); }
    virtual double maxYawRate() const { return myMaxYawRate; }
    virtual void setMaxYawRate(double rate) { assignSpecified(myMaxYawRate, rate); }
    virtual double maxPitchRate() const { return myMaxPitchRate; }
    virtual void setMaxPitchRate(double rate) { assignSpecified(myMaxPitchRate, rate); }
    virtual double maxRollRate() const { return myMaxRollRate; }
    virtual void setMaxRollRate(double rate) { assignSpecified(myMaxRollRate, rate); }
    virtual double maxYawAcceleration() const { return myMaxYawAcceleration; }
    virtual void setMaxYawAcceleration(double acceleration) { assignSpecified(myMaxYawAcceleration, acceleration); }
    virtual double maxPitchAcceleration() const { return myMaxPitchAcceleration; }
    virtual void setMaxPitchAcceleration(double acceleration) { assignSpecified(myMaxPitchAcceleration, acceleration); }
    virtual double maxRollAcceleration() const { return myMaxRollAcceleration; }
    virtual void setMaxRollAcceleration(double acceleration) { assignSpecified(myMaxRollAcceleration, acceleration); }
    virtual double zeroCollectiveLiftAcceleration() const { return myZeroCollectiveLiftAcceleration; }
    virtual void setZeroCollectiveLiftAcceleration(double acceleration)
    {
        assignSpecified(myZeroCollectiveLiftAcceleration, acceleration);
    }
    virtual double fullCollectiveLiftAcceleration() const { return myFullCollectiveLiftAcceleration; }
    virtual void setFullCollectiveLiftAcceleration(double acceleration)
    {
        assignSpecified(myFullCollectiveLiftAcceleration, acceleration);
    }

    /// The defaults of helicopters for what all moving objects have, for altitude, climb, yaw and pitch. The
    /// constructor calls it.
    virtual void setDefaults();

protected:
    AxRotaryWingEntityParameters(AxRotaryWingEntityParameters const& other, AxSymbolString name,
                                 AxReaderWriterRegistry* parent)
        : AxRotaryWingEntityParameters(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }

private:
    AxRwReal myMaxAltitude{{"max-altitude", "m", "Largest altitude.", {0.0, axUnbounded}}, 12000.0, registry()};
    AxRwBoolean myJoystickControl{{"joystick-control", "", "Whether a joystick flies the aircraft."}, registry()};
    AxRwBoolean myTerrainCheck{
        {"terrain-check", "", "Whether contact with the terrain is looked for."}, true, registry()};
    AxRwReal myMaxClimbRate{
        {"max-climb-rate", "m/s", "Largest vertical speed upward.", {0.0, axUnbounded}}, 50.0, registry()};
    AxRwReal myMaxYawRate{
        {"max-yaw-rate", "rad/s", "Largest rate of yaw.", {0.0, axUnbounded}}, 0.7853981633974483, registry()};
    AxRwReal myMaxPitchRate{
        {"max-pitch-rate", "rad/s", "Largest rate of pitch.", {0.0, axUnbounded}}, 0.7853981633974483, registry()};
    AxRwReal myMaxRollRate{
        {"max-roll-rate", "rad/s", "Largest rate of roll.", {0.0, axUnbounded}}, 1.0471975511965976, registry()};
    AxRwReal myMaxYawAcceleration{
        {"max-yaw-acceleration", "rad/s2", "Largest acceleration of yaw.", {0.0, axUnbounded}}, 0.1768, registry()};
    AxRwReal myMaxPitchAcceleration{
        {"max-pitch-acceleration", "rad/s2", "Largest acceleration of pitch.", {0.0, axUnbounded}}, 0.1768, registry()};
    AxRwReal myMaxRollAcceleration{
        {"max-roll-acceleration", "rad/s2", "Largest acceleration of roll.", {0.0, axUnbounded}}, 0.1768, registry()};
    AxRwReal myZeroCollectiveLiftAcceleration{
        {"zero-collective-lift-acceleration", "m/s2", "Vertical acceleration without collective."}, -10.0, registry()};
    AxRwReal myFullCollectiveLiftAcceleration{
        {"full-collective-lift-acceleration", "m/s2", "Vertical acceleration at full collective."}, 30.0, registry()};
};
