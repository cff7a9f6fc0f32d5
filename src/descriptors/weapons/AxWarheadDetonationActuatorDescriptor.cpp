#include "AxWarheadDetonationActuatorDescriptor.h"

AxWarheadDetonationActuatorDescriptor::AxWarheadDetonationActuatorDescriptor(AxSymbolString name,
                                                                             AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxWarheadDetonationActuatorDescriptor::~AxWarheadDetonationActuatorDescriptor() = default;
