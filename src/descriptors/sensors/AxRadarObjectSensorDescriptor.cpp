#include "AxRadarObjectSensorDescriptor.h"

AxRadarObjectSensorDescriptor::AxRadarObjectSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxRadarObjectSensorDescriptor::~AxRadarObjectSensorDescriptor() = default;
