#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// Drives a ground object to a point, slowing down as it comes near. Base of the follow and lifeform acquisition
/// controllers.
class ZEDOBJPARAM_API AxGroundMoveToDescriptor
    : public AxDescriptorOf<AxGroundMoveToDescriptor, AxComponentDescriptor, "ground-move-to-descriptor">
{
public:
    AxGroundMoveToDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxGroundMoveToDescriptor(AxGroundMoveToDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxGroundMoveToDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxGroundMoveToDescriptor() override;

    virtual double nearDistance() const { return myNearDistance; }
    virtual void setNearDistance(double distance) { assignSpecified(myNearDistance, distance); }
    virtual double atDistance() const { return myAtDistance; }
    virtual void setAtDistance(double distance) { assignSpecified(myAtDistance, distance); }
    virtual double approachSpeed() const { return myApproachSpeed; }
    virtual void setApproachSpeed(double speed) { assignSpecified(myApproachSpeed, speed); }
    virtual double roadCenterOffset() const { return myRoadCenterOffset; }
    virtual void setRoadCenterOffset(double offset) { assignSpecified(myRoadCenterOffset, offset); }

private:
    AxRwReal myNearDistance{
        {"near-distance", "m", "Distance to the destination at which approach speed is taken.", axNotNegative},
        25.0,
        registry()};
    AxRwReal myAtDistance{
        {"at-distance", "m", "Distance at which the destination counts as reached.", axNotNegative}, 1.0, registry()};
    AxRwReal myApproachSpeed{
        {"approach-speed", "m/s", "Speed of the last stretch, within near distance.", axNotNegative}, 2.0, registry()};
    AxRwReal myRoadCenterOffset{
        {"road-center-offset", "m", "How far right of a road's centre line is driven; negative: left."},
        2.0,
        registry()};
};
