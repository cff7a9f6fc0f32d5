#include "AxMultipleHitDamageActuatorDescriptor.h"

AxMultipleHitDamageActuatorDescriptor::AxMultipleHitDamageActuatorDescriptor(AxSymbolString name,
                                                                             AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxMultipleHitDamageActuatorDescriptor::~AxMultipleHitDamageActuatorDescriptor() = default;
