#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// A controller that makes an aircraft hold its fire near the ground.
class ZEDOBJPARAM_API AxAirVehicleWeaponHoldControllerDescriptor
    : public AxDescriptorOf<AxAirVehicleWeaponHoldControllerDescriptor, AxComponentDescriptor,
                            "air-vehicle-weapon-hold-controller-descriptor">
{
public:
    AxAirVehicleWeaponHoldControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAirVehicleWeaponHoldControllerDescriptor(AxAirVehicleWeaponHoldControllerDescriptor const& other,
                                               AxReaderWriterRegistry* registry)
        : AxAirVehicleWeaponHoldControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAirVehicleWeaponHoldControllerDescriptor() override;

    virtual double minWeaponFireAltitude() const { return myMinWeaponFireAltitude; }
    virtual void setMinWeaponFireAltitude(double altitude) { assignSpecified(myMinWeaponFireAltitude, altitude); }

private:
    AxRwReal myMinWeaponFireAltitude{{"min-weapon-fire-altitude", "m",
                                      "Height above ground below which weapons are held; 0: never held.",
                                      axNotNegative},
                                     registry()};
};
