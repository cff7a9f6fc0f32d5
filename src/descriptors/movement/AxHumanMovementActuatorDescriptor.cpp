#include "AxHumanMovementActuatorDescriptor.h"

AxHumanMovementActuatorDescriptor::AxHumanMovementActuatorDescriptor(AxSymbolString name,
                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxHumanMovementActuatorDescriptor::~AxHumanMovementActuatorDescriptor() = default;
