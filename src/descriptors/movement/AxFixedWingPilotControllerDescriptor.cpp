#include "AxFixedWingPilotControllerDescriptor.h"

AxFixedWingPilotControllerDescriptor::AxFixedWingPilotControllerDescriptor(AxSymbolString name,
                                                                           AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxFixedWingPilotControllerDescriptor::~AxFixedWingPilotControllerDescriptor() = default;
