#include "AxSpawnControllerDescriptor.h"

AxSpawnControllerDescriptor::AxSpawnControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxSpawnControllerDescriptor::~AxSpawnControllerDescriptor() = default;
