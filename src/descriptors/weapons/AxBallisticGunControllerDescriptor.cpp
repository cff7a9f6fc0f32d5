#include "AxBallisticGunControllerDescriptor.h"

AxBallisticGunControllerDescriptor::AxBallisticGunControllerDescriptor(AxSymbolString name,
                                                                       AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
    myTargetingControl.setValueSpecified(false, false);
    myAmmoSelectTableFile.setContent(&myAmmoSelectTable);
}

AxBallisticGunControllerDescriptor::~AxBallisticGunControllerDescriptor() = default;
