#pragma once

#include "AxAggregateReleaseBombControllerDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// A controller for the air defence of a unit simulated as a whole; it attacks aircraft the way the bomb controller
/// attacks places on the ground.
class ZEDOBJPARAM_API AxAggregateAntiAirControllerDescriptor
    : public AxDescriptorOf<AxAggregateAntiAirControllerDescriptor, AxAggregateReleaseBombControllerDescriptor,
                            "aggregate-anti-air-controller-descriptor">
{
public:
    AxAggregateAntiAirControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAggregateAntiAirControllerDescriptor(AxAggregateAntiAirControllerDescriptor const& other,
                                           AxReaderWriterRegistry* registry)
        : AxAggregateAntiAirControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAggregateAntiAirControllerDescriptor() override;

    virtual double maxAltitude() const { return myMaxAltitude; }
    virtual void setMaxAltitude(double altitude) { assignSpecified(myMaxAltitude, altitude); }

private:
    AxRwReal myMaxAltitude{
        {"max-altitude", "m", "Altitude above which aircraft are out of reach.", axNotNegative}, 5000.0, registry()};
};
