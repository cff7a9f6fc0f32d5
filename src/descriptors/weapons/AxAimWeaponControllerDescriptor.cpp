#include "AxAimWeaponControllerDescriptor.h"

AxAimWeaponControllerDescriptor::AxAimWeaponControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAimWeaponControllerDescriptor::~AxAimWeaponControllerDescriptor() = default;
