#include "AxWeaponControllerDescriptor.h"

AxWeaponControllerDescriptor::AxWeaponControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
    myTargetingControl.setValueSpecified(false, false);
    myAmmoSelectTableFile.setContent(&myAmmoSelectTable);
}

AxWeaponControllerDescriptor::~AxWeaponControllerDescriptor() = default;
