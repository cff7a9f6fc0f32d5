#include "AxRotaryWingTaskDescriptor.h"

AxRotaryWingTaskDescriptor::AxRotaryWingTaskDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxRotaryWingTaskDescriptor::~AxRotaryWingTaskDescriptor() = default;
