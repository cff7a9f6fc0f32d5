#include "AxIffControllerDescriptor.h"

AxIffControllerDescriptor::AxIffControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxIffControllerDescriptor::~AxIffControllerDescriptor() = default;
