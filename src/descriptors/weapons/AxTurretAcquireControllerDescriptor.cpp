#include "AxTurretAcquireControllerDescriptor.h"

AxTurretAcquireControllerDescriptor::AxTurretAcquireControllerDescriptor(AxSymbolString name,
                                                                         AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxTurretAcquireControllerDescriptor::~AxTurretAcquireControllerDescriptor() = default;
