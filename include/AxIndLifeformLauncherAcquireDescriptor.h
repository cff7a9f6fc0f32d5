#pragma once

#include "AxDescriptorOf.h"
#include "AxIndividualLifeformAcquireDescriptor.h"

/// Turns and moves a lifeform until its shoulder-fired launcher bears on the target. Takes the values of lifeform
/// acquisition only.
class ZEDOBJPARAM_API AxIndLifeformLauncherAcquireDescriptor
    : public AxDescriptorOf<AxIndLifeformLauncherAcquireDescriptor, AxIndividualLifeformAcquireDescriptor,
                            "individual-lifeform-launcher-acquire-descriptor">
{
public:
    AxIndLifeformLauncherAcquireDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxIndLifeformLauncherAcquireDescriptor(AxIndLifeformLauncherAcquireDescriptor const& other,
                                           AxReaderWriterRegistry* registry)
        : AxIndLifeformLauncherAcquireDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxIndLifeformLauncherAcquireDescriptor() override;
};
