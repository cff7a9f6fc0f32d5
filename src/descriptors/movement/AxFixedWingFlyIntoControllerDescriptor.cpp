#include "AxFixedWingFlyIntoControllerDescriptor.h"

AxFixedWingFlyIntoControllerDescriptor::AxFixedWingFlyIntoControllerDescriptor(AxSymbolString name,
                                                                               AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxFixedWingFlyIntoControllerDescriptor::~AxFixedWingFlyIntoControllerDescriptor() = default;
