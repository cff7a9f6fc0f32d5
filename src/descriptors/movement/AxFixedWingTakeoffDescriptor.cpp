#include "AxFixedWingTakeoffDescriptor.h"

AxFixedWingTakeoffDescriptor::AxFixedWingTakeoffDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxFixedWingTakeoffDescriptor::~AxFixedWingTakeoffDescriptor() = default;
