#include "AxElevatingBallisticGunControllerDescriptor.h"

AxElevatingBallisticGunControllerDescriptor::AxElevatingBallisticGunControllerDescriptor(
    AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxElevatingBallisticGunControllerDescriptor::~AxElevatingBallisticGunControllerDescriptor() = default;
