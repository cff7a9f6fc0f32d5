#include "AxNbcSensorDescriptor.h"

AxNbcSensorDescriptor::AxNbcSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxNbcSensorDescriptor::~AxNbcSensorDescriptor() = default;
