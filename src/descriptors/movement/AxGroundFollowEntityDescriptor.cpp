#include "AxGroundFollowEntityDescriptor.h"

AxGroundFollowEntityDescriptor::AxGroundFollowEntityDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxGroundFollowEntityDescriptor::~AxGroundFollowEntityDescriptor() = default;
