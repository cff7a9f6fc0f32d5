#include "AxEmbeddedEntitiesDescriptor.h"

AxEmbeddedEntitiesDescriptor::AxEmbeddedEntitiesDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxEmbeddedEntitiesDescriptor::~AxEmbeddedEntitiesDescriptor() = default;
