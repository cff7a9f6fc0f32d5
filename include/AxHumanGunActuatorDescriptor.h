#pragma once

#include "AxAngle.h"
#include "AxBallisticGunDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// A gun carried by a person, who aims it to the side with the upper body; adds the limits in azimuth to those of the
/// gun.
class ZEDOBJPARAM_API AxHumanGunActuatorDescriptor
    : public AxDescriptorOf<AxHumanGunActuatorDescriptor, AxBallisticGunDescriptor, "human-gun-actuator-descriptor">
{
public:
    AxHumanGunActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxHumanGunActuatorDescriptor(AxHumanGunActuatorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxHumanGunActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxHumanGunActuatorDescriptor() override;

    virtual double maxAzimuthRate() const { return myMaxAzimuthRate; }
    virtual void setMaxAzimuthRate(double rate) { assignSpecified(myMaxAzimuthRate, rate); }
    virtual double maxAzimuthRange() const { return myMaxAzimuthRange; }
    virtual void setMaxAzimuthRange(double range) { assignSpecified(myMaxAzimuthRange, range); }
    virtual double minAzimuthRange() const { return myMinAzimuthRange; }
    virtual void setMinAzimuthRange(double range) { assignSpecified(myMinAzimuthRange, range); }

private:
    AxRwReal myMaxAzimuthRate{{"max-azimuth-rate", "rad/s", "Fastest turn of the weapon to the side.", axNotNegative},
                              axRadians(180.0),
                              registry()};
    AxRwReal myMaxAzimuthRange{
        {"max-azimuth-range", "rad", "Farthest aim to the right of the body's front.", axBearing},
        axRadians(90.0),
        registry()};
    AxRwReal myMinAzimuthRange{
        {"min-azimuth-range", "rad", "Farthest aim to the left, negative.", axBearing}, axRadians(-90.0), registry()};
};
