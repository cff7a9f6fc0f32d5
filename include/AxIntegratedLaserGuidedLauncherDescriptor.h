#pragma once

#include "AxDescriptorOf.h"
#include "AxLaserGuidedLauncherControllerDescriptor.h"
#include "AxTargetSelectionCriteria.h"

/// A laser-guided launcher whose object also carries the designator, so that it picks its targets itself.
class ZEDOBJPARAM_API AxIntegratedLaserGuidedLauncherDescriptor
    : public AxDescriptorOf<AxIntegratedLaserGuidedLauncherDescriptor, AxLaserGuidedLauncherControllerDescriptor,
                            "integrated-laser-guided-launcher-controller-descriptor">
{
public:
    AxIntegratedLaserGuidedLauncherDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxIntegratedLaserGuidedLauncherDescriptor(AxIntegratedLaserGuidedLauncherDescriptor const& other,
                                              AxReaderWriterRegistry* registry)
        : AxIntegratedLaserGuidedLauncherDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxIntegratedLaserGuidedLauncherDescriptor() override;

    virtual AxTargetSelectionCriteria const& targetingControl() const { return myTargetingControl; }
    virtual AxTargetSelectionCriteria& targetingControl() { return myTargetingControl; }

private:
    AxTargetSelectionCriteria myTargetingControl{
        {"targeting-control", "", "How targets are preferred, how many are kept, and where they are engaged."},
        registry()};
};
