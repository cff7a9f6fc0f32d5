#include "AxGroundCollisionAvoidanceDescriptor.h"

AxGroundCollisionAvoidanceDescriptor::AxGroundCollisionAvoidanceDescriptor(AxSymbolString name,
                                                                           AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxGroundCollisionAvoidanceDescriptor::~AxGroundCollisionAvoidanceDescriptor() = default;
