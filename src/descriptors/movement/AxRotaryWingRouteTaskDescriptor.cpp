#include "AxRotaryWingRouteTaskDescriptor.h"

AxRotaryWingRouteTaskDescriptor::AxRotaryWingRouteTaskDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxRotaryWingRouteTaskDescriptor::~AxRotaryWingRouteTaskDescriptor() = default;
