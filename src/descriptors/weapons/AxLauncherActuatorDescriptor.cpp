#include "AxLauncherActuatorDescriptor.h"

AxLauncherActuatorDescriptor::AxLauncherActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxLauncherActuatorDescriptor::~AxLauncherActuatorDescriptor() = default;
