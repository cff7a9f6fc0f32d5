#include "AxFixedWingFollowEntityControllerDescriptor.h"

AxFixedWingFollowEntityControllerDescriptor::AxFixedWingFollowEntityControllerDescriptor(
    AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxFixedWingFollowEntityControllerDescriptor::~AxFixedWingFollowEntityControllerDescriptor() = default;
