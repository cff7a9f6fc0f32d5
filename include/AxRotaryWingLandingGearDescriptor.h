#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// Lowers and raises the landing gear of a helicopter by its height.
class ZEDOBJPARAM_API AxRotaryWingLandingGearDescriptor
    : public AxDescriptorOf<AxRotaryWingLandingGearDescriptor, AxComponentDescriptor,
                            "rotary-wing-landing-gear-descriptor">
{
public:
    AxRotaryWingLandingGearDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxRotaryWingLandingGearDescriptor(AxRotaryWingLandingGearDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxRotaryWingLandingGearDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxRotaryWingLandingGearDescriptor() override;

    virtual double landingGearAltitude() const { return myLandingGearAltitude; }
    virtual void setLandingGearAltitude(double altitude) { assignSpecified(myLandingGearAltitude, altitude); }

private:
    AxRwReal myLandingGearAltitude{
        {"landing-gear-altitude", "m", "Height above ground below which the gear is down.", axNotNegative},
        30.0,
        registry()};
};
