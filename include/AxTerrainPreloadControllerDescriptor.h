#pragma once

#include "AxDescriptorOf.h"
#include "AxRwInt.h"

/// Has the terrain around the object loaded before it is needed. Base of the preload that looks ahead of the
/// movement.
class ZEDOBJPARAM_API AxTerrainPreloadControllerDescriptor
    : public AxDescriptorOf<AxTerrainPreloadControllerDescriptor, AxComponentDescriptor, "terrain-preload-descriptor">
{
public:
    AxTerrainPreloadControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxTerrainPreloadControllerDescriptor(AxTerrainPreloadControllerDescriptor const& other,
                                         AxReaderWriterRegistry* registry)
        : AxTerrainPreloadControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxTerrainPreloadControllerDescriptor() override;

    virtual int preloadPriority() const { return myPreloadPriority; }
    virtual void setPreloadPriority(int priority) { assignSpecified(myPreloadPriority, priority); }

private:
    AxRwInt myPreloadPriority{
        {"preload-priority", "", "Rank of the object's terrain among all that waits to be loaded."}, registry()};
};
