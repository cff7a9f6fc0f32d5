#include "AxSurfaceEntityPilotControllerDescriptor.h"

AxSurfaceEntityPilotControllerDescriptor::AxSurfaceEntityPilotControllerDescriptor(AxSymbolString name,
                                                                                   AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxSurfaceEntityPilotControllerDescriptor::~AxSurfaceEntityPilotControllerDescriptor() = default;
