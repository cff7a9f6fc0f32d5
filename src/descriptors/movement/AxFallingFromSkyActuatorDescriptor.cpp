#include "AxFallingFromSkyActuatorDescriptor.h"

AxFallingFromSkyActuatorDescriptor::AxFallingFromSkyActuatorDescriptor(AxSymbolString name,
                                                                       AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxFallingFromSkyActuatorDescriptor::~AxFallingFromSkyActuatorDescriptor() = default;
