#include "AxFixedWingActuatorDescriptor.h"

AxFixedWingActuatorDescriptor::AxFixedWingActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxFixedWingActuatorDescriptor::~AxFixedWingActuatorDescriptor() = default;
