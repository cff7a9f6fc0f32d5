#include "AxEmitterComponentDescriptor.h"

AxEmitterComponentDescriptor::AxEmitterComponentDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxEmitterComponentDescriptor::~AxEmitterComponentDescriptor() = default;
