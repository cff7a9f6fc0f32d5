#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"
#include "AxSignatureObjectSensorDescriptor.h"

/// Listens for the sound that objects make, as long as the own speed leaves it able to hear.
class ZEDOBJPARAM_API AxPassiveSonarSensorDescriptor
    : public AxDescriptorOf<AxPassiveSonarSensorDescriptor, AxSignatureObjectSensorDescriptor,
                            "passive-sonar-sensor-descriptor">
{
public:
    AxPassiveSonarSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxPassiveSonarSensorDescriptor(AxPassiveSonarSensorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxPassiveSonarSensorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxPassiveSonarSensorDescriptor() override;

    virtual double maxEffectiveSpeed() const { return myMaxEffectiveSpeed; }
    virtual void setMaxEffectiveSpeed(double speed) { assignSpecified(myMaxEffectiveSpeed, speed); }
    virtual bool sonarDipCapable() const { return mySonarDipCapable; }
    virtual void setSonarDipCapable(bool capable) { assignSpecified(mySonarDipCapable, capable); }
    virtual bool usableWhileRetracted() const { return myUsableWhileRetracted; }
    virtual void setUsableWhileRetracted(bool usable) { assignSpecified(myUsableWhileRetracted, usable); }

private:
    AxRwReal myMaxEffectiveSpeed{
        {"max-effective-speed", "m/s", "Own speed above which the sonar is deaf.", axNotNegative}, 5.0, registry()};
    AxRwBoolean mySonarDipCapable{
        {"sonar-dip-capable", "", "Whether the sonar is lowered into the water from a hovering aircraft."}, registry()};
    AxRwBoolean myUsableWhileRetracted{
        {"usable-while-retracted", "", "Whether the sonar also hears while its array is hauled in."}, registry()};
};
