#include "AxLaserGuidedLauncherControllerDescriptor.h"

AxLaserGuidedLauncherControllerDescriptor::AxLaserGuidedLauncherControllerDescriptor(AxSymbolString name,
                                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxLaserGuidedLauncherControllerDescriptor::~AxLaserGuidedLauncherControllerDescriptor() = default;
