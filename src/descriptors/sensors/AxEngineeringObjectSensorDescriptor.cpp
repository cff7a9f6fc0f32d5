#include "AxEngineeringObjectSensorDescriptor.h"

AxEngineeringObjectSensorDescriptor::AxEngineeringObjectSensorDescriptor(AxSymbolString name,
                                                                         AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxEngineeringObjectSensorDescriptor::~AxEngineeringObjectSensorDescriptor() = default;
