#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwReal.h"
#include "AxRwVector.h"

/// A launcher on a trainable mount or a fixed rail: where munitions leave it and how far it turns.
class ZEDOBJPARAM_API AxLauncherActuatorDescriptor
    : public AxDescriptorOf<AxLauncherActuatorDescriptor, AxActuatorComponentDescriptor, "launcher-actuator-descriptor">
{
public:
    AxLauncherActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxLauncherActuatorDescriptor(AxLauncherActuatorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxLauncherActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxLauncherActuatorDescriptor() override;

    virtual AxVector64 const& launcherMuzzleOffset() const { return myLauncherMuzzleOffset.value(); }
    virtual void setLauncherMuzzleOffset(AxVector64 const& offset) { assignSpecified(myLauncherMuzzleOffset, offset); }
    virtual double azimuthRange() const { return myAzimuthRange; }
    virtual void setAzimuthRange(double range) { assignSpecified(myAzimuthRange, range); }
    virtual double elevationRange() const { return myElevationRange; }
    virtual void setElevationRange(double range) { assignSpecified(myElevationRange, range); }

private:
    AxRwVector myLauncherMuzzleOffset{
        {"launcher-muzzle-offset", "m", "Place in the body frame at which munitions leave."}, registry()};
    AxRwReal myAzimuthRange{{"azimuth-range", "rad", "Full traverse of the launcher; 0: fixed rail.", axFullTurn},
                            registry()};
    AxRwReal myElevationRange{
        {"elevation-range", "rad", "Full travel of the launcher in elevation; 0: fixed.", axHalfTurn}, registry()};
};
