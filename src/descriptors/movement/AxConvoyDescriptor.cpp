#include "AxConvoyDescriptor.h"

AxConvoyDescriptor::AxConvoyDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxConvoyDescriptor::~AxConvoyDescriptor() = default;
