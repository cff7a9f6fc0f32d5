#include "AxNbcWeaponControllerDescriptor.h"

AxNbcWeaponControllerDescriptor::AxNbcWeaponControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxNbcWeaponControllerDescriptor::~AxNbcWeaponControllerDescriptor() = default;
