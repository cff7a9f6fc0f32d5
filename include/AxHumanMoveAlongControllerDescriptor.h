#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// Walks a human along a route.
class ZEDOBJPARAM_API AxHumanMoveAlongControllerDescriptor
    : public AxDescriptorOf<AxHumanMoveAlongControllerDescriptor, AxComponentDescriptor,
                            "human-move-along-controller-descriptor">
{
public:
    AxHumanMoveAlongControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxHumanMoveAlongControllerDescriptor(AxHumanMoveAlongControllerDescriptor const& other,
                                         AxReaderWriterRegistry* registry)
        : AxHumanMoveAlongControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxHumanMoveAlongControllerDescriptor() override;

    virtual double atDistance() const { return myAtDistance; }
    virtual void setAtDistance(double distance) { assignSpecified(myAtDistance, distance); }

private:
    AxRwReal myAtDistance{
        {"at-distance", "m", "Distance at which a waypoint counts as reached.", axNotNegative}, 0.5, registry()};
};
