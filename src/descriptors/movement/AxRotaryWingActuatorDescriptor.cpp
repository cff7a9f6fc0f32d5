#include "AxRotaryWingActuatorDescriptor.h"

AxRotaryWingActuatorDescriptor::AxRotaryWingActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxRotaryWingActuatorDescriptor::~AxRotaryWingActuatorDescriptor() = default;
