#include "AxTurretComponentDescriptor.h"

AxTurretComponentDescriptor::AxTurretComponentDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxTurretComponentDescriptor::~AxTurretComponentDescriptor() = default;
