#include "AxIndirectFireActuatorDescriptor.h"

AxIndirectFireActuatorDescriptor::AxIndirectFireActuatorDescriptor(AxSymbolString name,
                                                                   AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxIndirectFireActuatorDescriptor::~AxIndirectFireActuatorDescriptor() = default;
