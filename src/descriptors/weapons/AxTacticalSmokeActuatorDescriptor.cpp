#include "AxTacticalSmokeActuatorDescriptor.h"

AxTacticalSmokeActuatorDescriptor::AxTacticalSmokeActuatorDescriptor(AxSymbolString name,
                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxTacticalSmokeActuatorDescriptor::~AxTacticalSmokeActuatorDescriptor() = default;
