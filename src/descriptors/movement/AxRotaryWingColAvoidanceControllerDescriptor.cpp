#include "AxRotaryWingColAvoidanceControllerDescriptor.h"

AxRotaryWingColAvoidanceControllerDescriptor::AxRotaryWingColAvoidanceControllerDescriptor(
    AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxRotaryWingColAvoidanceControllerDescriptor::~AxRotaryWingColAvoidanceControllerDescriptor() = default;
