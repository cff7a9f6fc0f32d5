#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// A mount that turns a weapon or sensor in azimuth.
class ZEDOBJPARAM_API AxAzimuthMountComponentDescriptor
    : public AxDescriptorOf<AxAzimuthMountComponentDescriptor, AxActuatorComponentDescriptor,
                            "azimuth-mount-descriptor">
{
public:
    AxAzimuthMountComponentDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAzimuthMountComponentDescriptor(AxAzimuthMountComponentDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxAzimuthMountComponentDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAzimuthMountComponentDescriptor() override;

    virtual double maxSlewRate() const { return myMaxSlewRate; }
    virtual void setMaxSlewRate(double rate) { assignSpecified(myMaxSlewRate, rate); }
    virtual double nominalAzimuth() const { return myNominalAzimuth; }
    virtual void setNominalAzimuth(double azimuth) { assignSpecified(myNominalAzimuth, azimuth); }
    virtual double azimuthRange() const { return myAzimuthRange; }
    virtual void setAzimuthRange(double range) { assignSpecified(myAzimuthRange, range); }

private:
    AxRwReal myMaxSlewRate{
        {"max-slew-rate", "rad/s", "Fastest turn of the mount.", axNotNegative}, axRadians(40.0), registry()};
    AxRwReal myNominalAzimuth{{"nominal-azimuth", "rad",
                               "Resting direction of the mount, positive to the right of the body's front.", axBearing},
                              registry()};
    AxRwReal myAzimuthRange{
        {"azimuth-range", "rad", "Full width of travel about the resting direction; 2 pi: all round.", axFullTurn},
        axRadians(360.0),
        registry()};
};
