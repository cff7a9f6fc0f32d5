#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwObjectTypeList.h"
#include "AxRwReal.h"
#include "AxRwUnsigned.h"

/// Moves an object exactly along a path, as on rails, in lanes and at its place in a convoy.
class ZEDOBJPARAM_API AxRailMovementDescriptor
    : public AxDescriptorOf<AxRailMovementDescriptor, AxComponentDescriptor, "rail-move-controller-descriptor">
{
public:
    AxRailMovementDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxRailMovementDescriptor(AxRailMovementDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxRailMovementDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxRailMovementDescriptor() override;

    virtual bool useTurnSmoothing() const { return myUseTurnSmoothing; }
    virtual void setUseTurnSmoothing(bool use) { assignSpecified(myUseTurnSmoothing, use); }
    virtual bool useAcceleration() const { return myUseAcceleration; }
    virtual void setUseAcceleration(bool use) { assignSpecified(myUseAcceleration, use); }
    virtual double turnSpeed() const { return myTurnSpeed; }
    virtual void setTurnSpeed(double speed) { assignSpecified(myTurnSpeed, speed); }
    virtual bool allowPassing() const { return myAllowPassing; }
    virtual void setAllowPassing(bool allow) { assignSpecified(myAllowPassing, allow); }
    virtual bool useHighFidelityGroundClamping() const { return myUseHighFidelityGroundClamping; }
    virtual void setUseHighFidelityGroundClamping(bool use) { assignSpecified(myUseHighFidelityGroundClamping, use); }
    virtual bool drawDebugSplinePoints() const { return myDrawDebugSplinePoints; }
    virtual void setDrawDebugSplinePoints(bool draw) { assignSpecified(myDrawDebugSplinePoints, draw); }
    virtual double convoyFollowTolerance() const { return myConvoyFollowTolerance; }
    virtual void setConvoyFollowTolerance(double tolerance) { assignSpecified(myConvoyFollowTolerance, tolerance); }
    virtual double convoyFollowSpeedFactor() const { return myConvoyFollowSpeedFactor; }
    virtual void setConvoyFollowSpeedFactor(double factor) { assignSpecified(myConvoyFollowSpeedFactor, factor); }
    virtual double railLookAheadDistance() const { return myRailLookAheadDistance; }
    virtual void setRailLookAheadDistance(double distance) { assignSpecified(myRailLookAheadDistance, distance); }
    virtual double railHitTimeLaneChange() const { return myRailHitTimeLaneChange; }
    virtual void setRailHitTimeLaneChange(double time) { assignSpecified(myRailHitTimeLaneChange, time); }
    virtual AxRwObjectTypeList const& passableObjectTypes() const { return myPassableObjectTypes; }
    virtual AxRwObjectTypeList& passableObjectTypes() { return myPassableObjectTypes; }
    virtual unsigned extraLanesEachDirection() const { return myExtraLanesEachDirection; }
    virtual void setExtraLanesEachDirection(unsigned lanes) { assignSpecified(myExtraLanesEachDirection, lanes); }
    virtual unsigned drivingLane() const { return myDrivingLane; }
    virtual void setDrivingLane(unsigned lane) { assignSpecified(myDrivingLane, lane); }

private:
    AxRwBoolean myUseTurnSmoothing{
        {"use-turn-smoothing", "", "Whether corners of the path are rounded."}, true, registry()};
    AxRwBoolean myUseAcceleration{
        {"use-acceleration", "", "Whether speed changes gradually; otherwise at once."}, true, registry()};
    AxRwReal myTurnSpeed{{"turn-speed", "m/s", "Speed to which corners are slowed.", axNotNegative}, 5.0, registry()};
    AxRwBoolean myAllowPassing{{"allow-passing", "", "Whether slower objects ahead are overtaken."}, registry()};
    AxRwBoolean myUseHighFidelityGroundClamping{
        {"use-high-fidelity-ground-clamping", "",
         "Whether each support rests on the ground; otherwise the centre alone does."},
        registry()};
    AxRwBoolean myDrawDebugSplinePoints{
        {"draw-debug-spline-points", "", "Whether the points of the smoothed path are shown."}, registry()};
    AxRwReal myConvoyFollowTolerance{
        {"convoy-follow-tolerance", "m", "Error of the place in the convoy that is left alone.", axNotNegative},
        5.0,
        registry()};
    AxRwReal myConvoyFollowSpeedFactor{
        {"convoy-follow-speed-factor", "", "Multiple of the convoy's speed when catching up.", axNotNegative},
        1.2,
        registry()};
    AxRwReal myRailLookAheadDistance{
        {"rail-look-ahead-distance", "m", "Distance along the path that is searched for others.", axNotNegative},
        50.0,
        registry()};
    AxRwReal myRailHitTimeLaneChange{{"rail-hit-time-lane-change", "s",
                                      "Time before a collision ahead at which the lane is changed.", axNotNegative},
                                     3.0,
                                     registry()};
    AxRwObjectTypeList myPassableObjectTypes{
        {"passable-object-types", "", "Patterns of objects that do not block the path; empty: every object blocks."},
        registry()};
    AxRwUnsigned myExtraLanesEachDirection{
        {"extra-lanes-each-direction", "", "Lanes beyond the first in each direction; 0: one lane.", axNotNegative},
        registry()};
    AxRwUnsigned myDrivingLane{
        {"driving-lane", "", "Lane that is driven in, counted inward; 0: the outermost.", axNotNegative}, registry()};
};
