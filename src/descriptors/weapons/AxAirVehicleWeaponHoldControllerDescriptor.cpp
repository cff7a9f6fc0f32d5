#include "AxAirVehicleWeaponHoldControllerDescriptor.h"

AxAirVehicleWeaponHoldControllerDescriptor::AxAirVehicleWeaponHoldControllerDescriptor(AxSymbolString name,
                                                                                       AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAirVehicleWeaponHoldControllerDescriptor::~AxAirVehicleWeaponHoldControllerDescriptor() = default;
