#include "AxResupplyControllerDescriptor.h"

AxResupplyControllerDescriptor::AxResupplyControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxResupplyControllerDescriptor::~AxResupplyControllerDescriptor() = default;
