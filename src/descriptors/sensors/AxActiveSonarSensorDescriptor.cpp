#include "AxActiveSonarSensorDescriptor.h"

AxActiveSonarSensorDescriptor::AxActiveSonarSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxActiveSonarSensorDescriptor::~AxActiveSonarSensorDescriptor() = default;
