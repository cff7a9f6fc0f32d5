#include "AxTurretReturnToHeadingControllerDescriptor.h"

AxTurretReturnToHeadingControllerDescriptor::AxTurretReturnToHeadingControllerDescriptor(
    AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxTurretReturnToHeadingControllerDescriptor::~AxTurretReturnToHeadingControllerDescriptor() = default;
