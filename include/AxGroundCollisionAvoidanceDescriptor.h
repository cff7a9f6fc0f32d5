#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// Steers or stops a ground object before it runs into others.
class ZEDOBJPARAM_API AxGroundCollisionAvoidanceDescriptor
    : public AxDescriptorOf<AxGroundCollisionAvoidanceDescriptor, AxComponentDescriptor,
                            "ground-collision-avoidance-descriptor">
{
public:
    AxGroundCollisionAvoidanceDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxGroundCollisionAvoidanceDescriptor(AxGroundCollisionAvoidanceDescriptor const& other,
                                         AxReaderWriterRegistry* registry)
        : AxGroundCollisionAvoidanceDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxGroundCollisionAvoidanceDescriptor() override;

    virtual double timeToCollide() const { return myTimeToCollide; }
    virtual void setTimeToCollide(double time) { assignSpecified(myTimeToCollide, time); }
    virtual double lateralClearance() const { return myLateralClearance; }
    virtual void setLateralClearance(double clearance) { assignSpecified(myLateralClearance, clearance); }
    virtual double stoppingDistanceFactor() const { return myStoppingDistanceFactor; }
    virtual void setStoppingDistanceFactor(double factor) { assignSpecified(myStoppingDistanceFactor, factor); }

private:
    AxRwReal myTimeToCollide{
        {"time-to-collide", "s", "Time before a predicted collision at which it is avoided.", axNotNegative},
        5.0,
        registry()};
    AxRwReal myLateralClearance{
        {"lateral-clearance", "m", "Room to either side that is kept from others.", axNotNegative}, 2.0, registry()};
    AxRwReal myStoppingDistanceFactor{
        {"stopping-distance-factor", "", "Multiple of the stopping distance that is kept free ahead.", axNotNegative},
        1.5,
        registry()};
};
