#include "AxHumanGunActuatorDescriptor.h"

AxHumanGunActuatorDescriptor::AxHumanGunActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxHumanGunActuatorDescriptor::~AxHumanGunActuatorDescriptor() = default;
