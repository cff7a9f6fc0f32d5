#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxTerrainPreloadControllerDescriptor.h"

/// Terrain preload that reaches farther the faster the object moves.
class ZEDOBJPARAM_API AxMovementBasedTerrainPreloadControllerDescriptor
    : public AxDescriptorOf<AxMovementBasedTerrainPreloadControllerDescriptor, AxTerrainPreloadControllerDescriptor,
                            "movement-based-terrain-preload-descriptor">
{
public:
    AxMovementBasedTerrainPreloadControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxMovementBasedTerrainPreloadControllerDescriptor(AxMovementBasedTerrainPreloadControllerDescriptor const& other,
                                                      AxReaderWriterRegistry* registry)
        : AxMovementBasedTerrainPreloadControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxMovementBasedTerrainPreloadControllerDescriptor() override;

    virtual AxString const& geometryType() const { return myGeometryType.value(); }
    virtual void setGeometryType(AxString const& type) { assignSpecified(myGeometryType, type); }
    virtual double minPreloadDistance() const { return myMinPreloadDistance; }
    virtual void setMinPreloadDistance(double distance) { assignSpecified(myMinPreloadDistance, distance); }
    virtual double maxPreloadDistance() const { return myMaxPreloadDistance; }
    virtual void setMaxPreloadDistance(double distance) { assignSpecified(myMaxPreloadDistance, distance); }

private:
    AxRwString myGeometryType{
        {"geometry-type", "", "Shape of the area: \"circle\" around the object or \"cone\" ahead of it."},
        "circle",
        registry()};
    AxRwReal myMinPreloadDistance{
        {"min-preload-distance", "m", "Reach of the area for an object at rest.", axNotNegative}, 500.0, registry()};
    AxRwReal myMaxPreloadDistance{
        {"max-preload-distance", "m", "Farthest reach of the area at speed.", axNotNegative}, 5000.0, registry()};
};
