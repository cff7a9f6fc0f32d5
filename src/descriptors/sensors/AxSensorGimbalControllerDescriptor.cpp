#include "AxSensorGimbalControllerDescriptor.h"

AxSensorGimbalControllerDescriptor::AxSensorGimbalControllerDescriptor(AxSymbolString name,
                                                                       AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxSensorGimbalControllerDescriptor::~AxSensorGimbalControllerDescriptor() = default;
