#include "AxFixedWingGunneryControllerDescriptor.h"

AxFixedWingGunneryControllerDescriptor::AxFixedWingGunneryControllerDescriptor(AxSymbolString name,
                                                                               AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxFixedWingGunneryControllerDescriptor::~AxFixedWingGunneryControllerDescriptor() = default;
