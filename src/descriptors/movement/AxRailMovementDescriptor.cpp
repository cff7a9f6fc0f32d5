#include "AxRailMovementDescriptor.h"

AxRailMovementDescriptor::AxRailMovementDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxRailMovementDescriptor::~AxRailMovementDescriptor() = default;
