#include "AxPassiveSonarSensorDescriptor.h"

AxPassiveSonarSensorDescriptor::AxPassiveSonarSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxPassiveSonarSensorDescriptor::~AxPassiveSonarSensorDescriptor() = default;
