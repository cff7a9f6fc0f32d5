#pragma once

#include "AxAngle.h"
#include "AxBallisticGunControllerDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxRwInt.h"
#include "AxRwReal.h"

/// A gunner who also lays the gun in elevation, for objects whose guns elevate on their own.
class ZEDOBJPARAM_API AxElevatingBallisticGunControllerDescriptor
    : public AxDescriptorOf<AxElevatingBallisticGunControllerDescriptor, AxBallisticGunControllerDescriptor,
                            "elevating-ballistic-gun-ctlr-descriptor">
{
public:
    AxElevatingBallisticGunControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxElevatingBallisticGunControllerDescriptor(AxElevatingBallisticGunControllerDescriptor const& other,
                                                AxReaderWriterRegistry* registry)
        : AxElevatingBallisticGunControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxElevatingBallisticGunControllerDescriptor() override;

    virtual double maxElevationRate() const { return myMaxElevationRate; }
    virtual void setMaxElevationRate(double rate) { assignSpecified(myMaxElevationRate, rate); }
    virtual int gunToControl() const { return myGunToControl; }
    virtual void setGunToControl(int gun) { assignSpecified(myGunToControl, gun); }

private:
    AxRwReal myMaxElevationRate{
        {"max-elevation-rate", "rad/s", "Fastest change of elevation that the gunner demands.", axNotNegative},
        axRadians(30.0),
        registry()};
    AxRwInt myGunToControl{
        {"gun-to-control", "", "Number of the gun on the object, counted from 1.", {1.0, axUnbounded}}, 1, registry()};
};
