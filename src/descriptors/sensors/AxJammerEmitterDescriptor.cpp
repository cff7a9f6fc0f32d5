#include "AxJammerEmitterDescriptor.h"

AxJammerEmitterDescriptor::AxJammerEmitterDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxJammerEmitterDescriptor::~AxJammerEmitterDescriptor() = default;
