#include "AxLaunchSmokeControllerDescriptor.h"

AxLaunchSmokeControllerDescriptor::AxLaunchSmokeControllerDescriptor(AxSymbolString name,
                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxLaunchSmokeControllerDescriptor::~AxLaunchSmokeControllerDescriptor() = default;
