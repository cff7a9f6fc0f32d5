#include "AxObstructionSensorDescriptor.h"

AxObstructionSensorDescriptor::AxObstructionSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxObstructionSensorDescriptor::~AxObstructionSensorDescriptor() = default;
