#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// Takes a fixed-wing aircraft off the runway and up to the height where its tasks begin.
class ZEDOBJPARAM_API AxFixedWingTakeoffDescriptor
    : public AxDescriptorOf<AxFixedWingTakeoffDescriptor, AxComponentDescriptor, "fixed-wing-takeoff-descriptor">
{
public:
    AxFixedWingTakeoffDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxFixedWingTakeoffDescriptor(AxFixedWingTakeoffDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxFixedWingTakeoffDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxFixedWingTakeoffDescriptor() override;

    virtual double takeoffDistance() const { return myTakeoffDistance; }
    virtual void setTakeoffDistance(double distance) { assignSpecified(myTakeoffDistance, distance); }
    virtual double takeoffAltitude() const { return myTakeoffAltitude; }
    virtual void setTakeoffAltitude(double altitude) { assignSpecified(myTakeoffAltitude, altitude); }

private:
    AxRwReal myTakeoffDistance{
        {"takeoff-distance", "m", "Length of the run until the wheels leave the ground.", axNotNegative},
        1000.0,
        registry()};
    AxRwReal myTakeoffAltitude{
        {"takeoff-altitude", "m", "Height above the runway at which the take-off is complete.", axNotNegative},
        300.0,
        registry()};
};
