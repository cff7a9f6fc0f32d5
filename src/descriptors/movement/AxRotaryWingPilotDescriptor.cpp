#include "AxRotaryWingPilotDescriptor.h"

AxRotaryWingPilotDescriptor::AxRotaryWingPilotDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxRotaryWingPilotDescriptor::~AxRotaryWingPilotDescriptor() = default;
