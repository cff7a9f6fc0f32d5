#pragma once

#include "AxDescriptorOf.h"
#include "AxRwSpatialFilterContainer.h"

/// The seeker of a missile as countermeasures see it: decoys within its view may draw the missile away from its
/// target.
class ZEDOBJPARAM_API AxMissileDistractionControllerDescriptor
    : public AxDescriptorOf<AxMissileDistractionControllerDescriptor, AxComponentDescriptor,
                            "missile-distraction-controller-descriptor">
{
public:
    AxMissileDistractionControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxMissileDistractionControllerDescriptor(AxMissileDistractionControllerDescriptor const& other,
                                             AxReaderWriterRegistry* registry)
        : AxMissileDistractionControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxMissileDistractionControllerDescriptor() override;

    virtual AxRwSpatialFilterContainer const& targetConeGeometry() const { return myTargetConeGeometry; }
    virtual AxRwSpatialFilterContainer& targetConeGeometry() { return myTargetConeGeometry; }

private:
    AxRwSpatialFilterContainer myTargetConeGeometry{
        {"target-cone-geometry", "", "Regions around the missile in which decoys draw it away; empty: everywhere."},
        registry()};
};
