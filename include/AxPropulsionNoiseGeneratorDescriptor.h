#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Turns the object's movement into revolutions of its propulsion, the noise by which sonars hear it.
class ZEDOBJPARAM_API AxPropulsionNoiseGeneratorDescriptor
    : public AxDescriptorOf<AxPropulsionNoiseGeneratorDescriptor, AxComponentDescriptor,
                            "propulsion-noise-generator-descriptor">
{
public:
    AxPropulsionNoiseGeneratorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxPropulsionNoiseGeneratorDescriptor(AxPropulsionNoiseGeneratorDescriptor const& other,
                                         AxReaderWriterRegistry* registry)
        : AxPropulsionNoiseGeneratorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxPropulsionNoiseGeneratorDescriptor() override;

    virtual double speedToRpmFactor() const { return mySpeedToRpmFactor; }
    virtual void setSpeedToRpmFactor(double factor) { assignSpecified(mySpeedToRpmFactor, factor); }
    virtual double accelerationToRpmFactor() const { return myAccelerationToRpmFactor; }
    virtual void setAccelerationToRpmFactor(double factor) { assignSpecified(myAccelerationToRpmFactor, factor); }
    virtual double minSpeed() const { return myMinSpeed; }
    virtual void setMinSpeed(double speed) { assignSpecified(myMinSpeed, speed); }
    virtual bool powerPlantActive() const { return myPowerPlantActive; }
    virtual void setPowerPlantActive(bool active) { assignSpecified(myPowerPlantActive, active); }

private:
    AxRwReal mySpeedToRpmFactor{
        {"speed-to-rpm-factor", "rpm/(m/s)", "Revolutions per speed through the water.", axNotNegative},
        10.0,
        registry()};
    AxRwReal myAccelerationToRpmFactor{
        {"acceleration-to-rpm-factor", "rpm/(m/s2)", "Revolutions added per acceleration.", axNotNegative}, registry()};
    AxRwReal myMinSpeed{{"min-speed", "m/s", "Speed below which the propulsion makes no noise.", axNotNegative},
                        registry()};
    AxRwBoolean myPowerPlantActive{
        {"power-plant-active", "", "Whether the power plant runs and is heard at the start."}, true, registry()};
};
