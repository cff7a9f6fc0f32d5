#include "AxIntegratedLaserGuidedLauncherDescriptor.h"

AxIntegratedLaserGuidedLauncherDescriptor::AxIntegratedLaserGuidedLauncherDescriptor(AxSymbolString name,
                                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
    myTargetingControl.setValueSpecified(false, false);
}

AxIntegratedLaserGuidedLauncherDescriptor::~AxIntegratedLaserGuidedLauncherDescriptor() = default;
