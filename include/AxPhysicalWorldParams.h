#pragma once

#include "AxObjectRecordOf.h"

/// Constants of the physics around all objects. No built-in factory lists it; `creator` enters it in one.
class ZEDOBJPARAM_API AxPhysicalWorldParams
    : public AxObjectRecordOf<AxPhysicalWorldParams, AxZedObjectParameters, "physical-world-param">
{
public:
    using AxObjectRecordOf::AxObjectRecordOf;
    ~AxPhysicalWorldParams() override;

    virtual double gravity() const { return myGravity; }
    virtual void setGravity(double acceleration) { assignSpecified(myGravity, acceleration); }
    virtual double airDensity() const { return myAirDensity; }
    virtual void setAirDensity(double density) { assignSpecified(myAirDensity, density); }
    virtual double airTemperature() const { return myAirTemperature; }
    virtual void setAirTemperature(double kelvin) { assignSpecified(myAirTemperature, kelvin); }
    virtual double speedOfSoundInAir() const { return mySpeedOfSoundInAir; }
    virtual void setSpeedOfSoundInAir(double speed) { assignSpecified(mySpeedOfSoundInAir, speed); }
    virtual double waterDensity() const { return myWaterDensity; }
    virtual void setWaterDensity(double density) { assignSpecified(myWaterDensity, density); }
    virtual double speedOfSoundInWater() const { return mySpeedOfSoundInWater; }
    virtual void setSpeedOfSoundInWater(double speed) { assignSpecified(mySpeedOfSoundInWater, speed); }

protected:
    AxPhysicalWorldParams(AxPhysicalWorldParams const& other, AxSymbolString name, AxReaderWriterRegistry* parent)
        : AxPhysicalWorldParams(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }

private:
    AxRwReal myGravity{{"gravity", "m/s2", "Acceleration of free fall."}, 9.80665, registry()};
    AxRwReal myAirDensity{{"air-density", "kg/m3", "Density of air.", {0.0, axUnbounded}}, 1.225, registry()};
    AxRwReal myAirTemperature{{"air-temperature", "K", "Temperature of air.", {0.0, axUnbounded}}, 288.15, registry()};
    AxRwReal mySpeedOfSoundInAir{
        {"speed-of-sound-in-air", "m/s", "Speed of sound in air.", {0.0, axUnbounded}}, 340.294, registry()};
    AxRwReal myWaterDensity{{"water-density", "kg/m3", "Density of water.", {0.0, axUnbounded}}, 1025.0, registry()};
    AxRwReal mySpeedOfSoundInWater{
        {"speed-of-sound-in-water", "m/s", "Speed of sound in water.", {0.0, axUnbounded}}, 1500.0, registry()};
};
