#include "AxSensorGimbalActuatorDescriptor.h"

AxSensorGimbalActuatorDescriptor::AxSensorGimbalActuatorDescriptor(AxSymbolString name,
                                                                   AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxSensorGimbalActuatorDescriptor::~AxSensorGimbalActuatorDescriptor() = default;
