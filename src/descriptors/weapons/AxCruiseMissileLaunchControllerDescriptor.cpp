#include "AxCruiseMissileLaunchControllerDescriptor.h"

AxCruiseMissileLaunchControllerDescriptor::AxCruiseMissileLaunchControllerDescriptor(AxSymbolString name,
                                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxCruiseMissileLaunchControllerDescriptor::~AxCruiseMissileLaunchControllerDescriptor() = default;
