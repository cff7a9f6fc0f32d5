#include "AxWeaponActuatorDescriptor.h"

AxWeaponActuatorDescriptor::AxWeaponActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxWeaponActuatorDescriptor::~AxWeaponActuatorDescriptor() = default;
