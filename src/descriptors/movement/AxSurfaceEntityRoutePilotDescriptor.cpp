#include "AxSurfaceEntityRoutePilotDescriptor.h"

AxSurfaceEntityRoutePilotDescriptor::AxSurfaceEntityRoutePilotDescriptor(AxSymbolString name,
                                                                         AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxSurfaceEntityRoutePilotDescriptor::~AxSurfaceEntityRoutePilotDescriptor() = default;
