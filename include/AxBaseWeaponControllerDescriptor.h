#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// What every controller of a guided or indirect-fire weapon shares: when the weapon may fire and how long loading
/// takes. It is not created by type name.
class ZEDOBJPARAM_API AxBaseWeaponControllerDescriptor
    : public AxDescriptorOf<AxBaseWeaponControllerDescriptor, AxComponentDescriptor>
{
public:
    AxBaseWeaponControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxBaseWeaponControllerDescriptor(AxBaseWeaponControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxBaseWeaponControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxBaseWeaponControllerDescriptor() override;

    virtual double maxVehicleSpeedToFire() const { return myMaxVehicleSpeedToFire; }
    virtual void setMaxVehicleSpeedToFire(double speed) { assignSpecified(myMaxVehicleSpeedToFire, speed); }
    virtual double maxAngleOffBoresight() const { return myMaxAngleOffBoresight; }
    virtual void setMaxAngleOffBoresight(double angle) { assignSpecified(myMaxAngleOffBoresight, angle); }
    virtual bool preloadWeapon() const { return myPreloadWeapon; }
    virtual void setPreloadWeapon(bool preload) { assignSpecified(myPreloadWeapon, preload); }
    virtual double loadAmmoTime() const { return myLoadAmmoTime; }
    virtual void setLoadAmmoTime(double time) { assignSpecified(myLoadAmmoTime, time); }
    virtual double unloadAmmoTime() const { return myUnloadAmmoTime; }
    virtual void setUnloadAmmoTime(double time) { assignSpecified(myUnloadAmmoTime, time); }
    virtual bool disabledBySuppression() const { return myDisabledBySuppression; }
    virtual void setDisabledBySuppression(bool disabled) { assignSpecified(myDisabledBySuppression, disabled); }

private:
    AxRwReal myMaxVehicleSpeedToFire{
        {"max-vehicle-speed-to-fire", "m/s", "Own speed above which the weapon does not fire; negative: no limit."},
        -1.0,
        registry()};
    AxRwReal myMaxAngleOffBoresight{{"max-angle-off-boresight", "rad",
                                     "Largest angle between boresight and target at firing; pi: no limit.", axHalfTurn},
                                    axRadians(180.0),
                                    registry()};
    AxRwBoolean myPreloadWeapon{{"preload-weapon", "", "Whether the weapon is loaded when the scenario starts."},
                                registry()};
    AxRwReal myLoadAmmoTime{{"load-ammo-time", "s", "Time to load a munition.", axNotNegative}, 10.0, registry()};
    AxRwReal myUnloadAmmoTime{
        {"unload-ammo-time", "s", "Time to clear the weapon before another kind is loaded.", axNotNegative},
        10.0,
        registry()};
    AxRwBoolean myDisabledBySuppression{
        {"disabled-by-suppression", "", "Whether the weapon ceases fire while the object is suppressed."}, registry()};
};
