#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// A mount that raises and lowers a weapon or sensor.
class ZEDOBJPARAM_API AxElevationMountComponentDescriptor
    : public AxDescriptorOf<AxElevationMountComponentDescriptor, AxActuatorComponentDescriptor,
                            "elevation-mount-descriptor">
{
public:
    AxElevationMountComponentDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxElevationMountComponentDescriptor(AxElevationMountComponentDescriptor const& other,
                                        AxReaderWriterRegistry* registry)
        : AxElevationMountComponentDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxElevationMountComponentDescriptor() override;

    virtual double nominalElevation() const { return myNominalElevation; }
    virtual void setNominalElevation(double elevation) { assignSpecified(myNominalElevation, elevation); }
    virtual double elevationRange() const { return myElevationRange; }
    virtual void setElevationRange(double range) { assignSpecified(myElevationRange, range); }
    virtual double maxElevateRate() const { return myMaxElevateRate; }
    virtual void setMaxElevateRate(double rate) { assignSpecified(myMaxElevateRate, rate); }

private:
    AxRwReal myNominalElevation{
        {"nominal-elevation", "rad", "Resting elevation of the mount, positive up.", axElevation}, registry()};
    AxRwReal myElevationRange{
        {"elevation-range", "rad", "Full width of travel about the resting elevation.", axHalfTurn},
        axRadians(60.0),
        registry()};
    AxRwReal myMaxElevateRate{
        {"max-elevate-rate", "rad/s", "Fastest change of elevation.", axNotNegative}, axRadians(30.0), registry()};
};
