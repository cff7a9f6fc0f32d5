#include "AxBaseWeaponControllerDescriptor.h"

AxBaseWeaponControllerDescriptor::AxBaseWeaponControllerDescriptor(AxSymbolString name,
                                                                   AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxBaseWeaponControllerDescriptor::~AxBaseWeaponControllerDescriptor() = default;
