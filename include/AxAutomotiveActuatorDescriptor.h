#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"

/// Moves wheeled and tracked vehicles over the ground within the limits of their object's record.
class ZEDOBJPARAM_API AxAutomotiveActuatorDescriptor
    : public AxDescriptorOf<AxAutomotiveActuatorDescriptor, AxActuatorComponentDescriptor,
                            "automotive-component-descriptor">
{
public:
    AxAutomotiveActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAutomotiveActuatorDescriptor(AxAutomotiveActuatorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxAutomotiveActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAutomotiveActuatorDescriptor() override;

    virtual bool checkTerrainCollisions() const { return myCheckTerrainCollisions; }
    virtual void setCheckTerrainCollisions(bool check) { assignSpecified(myCheckTerrainCollisions, check); }
    virtual bool useHighFidelityGroundClamping() const { return myUseHighFidelityGroundClamping; }
    virtual void setUseHighFidelityGroundClamping(bool use) { assignSpecified(myUseHighFidelityGroundClamping, use); }

private:
    AxRwBoolean myCheckTerrainCollisions{
        {"check-terrain-collisions", "", "Whether buildings and other terrain stop the vehicle."}, true, registry()};
    AxRwBoolean myUseHighFidelityGroundClamping{
        {"use-high-fidelity-ground-clamping", "",
         "Whether each support rests on the ground; otherwise the centre alone does."},
        registry()};
};
