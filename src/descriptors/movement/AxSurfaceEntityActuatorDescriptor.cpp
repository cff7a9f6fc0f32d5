#include "AxSurfaceEntityActuatorDescriptor.h"

AxSurfaceEntityActuatorDescriptor::AxSurfaceEntityActuatorDescriptor(AxSymbolString name,
                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxSurfaceEntityActuatorDescriptor::~AxSurfaceEntityActuatorDescriptor() = default;
