#include "AxGlobalEnvironmentActuatorDescriptor.h"

AxGlobalEnvironmentActuatorDescriptor::AxGlobalEnvironmentActuatorDescriptor(AxSymbolString name,
                                                                             AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxGlobalEnvironmentActuatorDescriptor::~AxGlobalEnvironmentActuatorDescriptor() = default;
