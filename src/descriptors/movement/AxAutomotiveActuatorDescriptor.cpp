#include "AxAutomotiveActuatorDescriptor.h"

AxAutomotiveActuatorDescriptor::AxAutomotiveActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAutomotiveActuatorDescriptor::~AxAutomotiveActuatorDescriptor() = default;
