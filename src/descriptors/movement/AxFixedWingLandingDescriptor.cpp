#include "AxFixedWingLandingDescriptor.h"

AxFixedWingLandingDescriptor::AxFixedWingLandingDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxFixedWingLandingDescriptor::~AxFixedWingLandingDescriptor() = default;
