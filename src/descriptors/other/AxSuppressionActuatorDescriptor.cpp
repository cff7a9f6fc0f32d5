#include "AxSuppressionActuatorDescriptor.h"

AxSuppressionActuatorDescriptor::AxSuppressionActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxSuppressionActuatorDescriptor::~AxSuppressionActuatorDescriptor() = default;
