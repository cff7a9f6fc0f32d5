#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxRwReal.h"
#include "AxRwVector.h"

/// A weapon that releases projectiles: where they leave the object and how fast. Base of the indirect-fire weapon.
class ZEDOBJPARAM_API AxWeaponActuatorDescriptor
    : public AxDescriptorOf<AxWeaponActuatorDescriptor, AxActuatorComponentDescriptor, "weapon-actuator-descriptor">
{
public:
    AxWeaponActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxWeaponActuatorDescriptor(AxWeaponActuatorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxWeaponActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxWeaponActuatorDescriptor() override;

    virtual double projectileStartSpeed() const { return myProjectileStartSpeed; }
    virtual void setProjectileStartSpeed(double speed) { assignSpecified(myProjectileStartSpeed, speed); }
    virtual AxVector64 const& muzzleOffset() const { return myMuzzleOffset.value(); }
    virtual void setMuzzleOffset(AxVector64 const& offset) { assignSpecified(myMuzzleOffset, offset); }

private:
    AxRwReal myProjectileStartSpeed{
        {"projectile-start-speed", "m/s", "Speed of a projectile at release; 0: the munition's own.", axNotNegative},
        registry()};
    AxRwVector myMuzzleOffset{{"muzzle-offset", "m", "Place in the body frame at which projectiles appear."},
                              registry()};
};
