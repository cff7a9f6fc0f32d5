#include "AxSwingingPartActuatorDescriptor.h"

AxSwingingPartActuatorDescriptor::AxSwingingPartActuatorDescriptor(AxSymbolString name,
                                                                   AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxSwingingPartActuatorDescriptor::~AxSwingingPartActuatorDescriptor() = default;
