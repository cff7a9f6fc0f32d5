#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// A controller that keeps a weapon pointed at the target in azimuth and tells when it is aimed well enough to fire.
class ZEDOBJPARAM_API AxAimWeaponControllerDescriptor
    : public AxDescriptorOf<AxAimWeaponControllerDescriptor, AxComponentDescriptor, "aim-weapon-controller-descriptor">
{
public:
    AxAimWeaponControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAimWeaponControllerDescriptor(AxAimWeaponControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxAimWeaponControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAimWeaponControllerDescriptor() override;

    virtual double maxAimAzimuth() const { return myMaxAimAzimuth; }
    virtual void setMaxAimAzimuth(double azimuth) { assignSpecified(myMaxAimAzimuth, azimuth); }
    virtual double minAimAzimuth() const { return myMinAimAzimuth; }
    virtual void setMinAimAzimuth(double azimuth) { assignSpecified(myMinAimAzimuth, azimuth); }
    virtual double aimTolerance() const { return myAimTolerance; }
    virtual void setAimTolerance(double tolerance) { assignSpecified(myAimTolerance, tolerance); }

private:
    AxRwReal myMaxAimAzimuth{{"max-aim-azimuth", "rad", "Farthest aim to the right of the body's front.", axBearing},
                             axRadians(90.0),
                             registry()};
    AxRwReal myMinAimAzimuth{
        {"min-aim-azimuth", "rad", "Farthest aim to the left, negative.", axBearing}, axRadians(-90.0), registry()};
    AxRwReal myAimTolerance{
        {"aim-tolerance", "rad", "Error of the aim below which the weapon counts as aimed.", axHalfTurn},
        axRadians(1.0),
        registry()};
};
