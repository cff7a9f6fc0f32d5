#include "AxIndLifeformLauncherAcquireDescriptor.h"

AxIndLifeformLauncherAcquireDescriptor::AxIndLifeformLauncherAcquireDescriptor(AxSymbolString name,
                                                                               AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxIndLifeformLauncherAcquireDescriptor::~AxIndLifeformLauncherAcquireDescriptor() = default;
