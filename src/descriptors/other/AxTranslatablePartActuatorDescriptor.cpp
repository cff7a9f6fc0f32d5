#include "AxTranslatablePartActuatorDescriptor.h"

AxTranslatablePartActuatorDescriptor::AxTranslatablePartActuatorDescriptor(AxSymbolString name,
                                                                           AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxTranslatablePartActuatorDescriptor::~AxTranslatablePartActuatorDescriptor() = default;
