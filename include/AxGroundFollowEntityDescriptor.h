#pragma once

#include "AxDescriptorOf.h"
#include "AxGroundMoveToDescriptor.h"
#include "AxRwReal.h"

/// Drives a ground object after another that moves, matching its speed.
class ZEDOBJPARAM_API AxGroundFollowEntityDescriptor
    : public AxDescriptorOf<AxGroundFollowEntityDescriptor, AxGroundMoveToDescriptor, "ground-follow-entity-descriptor">
{
public:
    AxGroundFollowEntityDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxGroundFollowEntityDescriptor(AxGroundFollowEntityDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxGroundFollowEntityDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxGroundFollowEntityDescriptor() override;

    virtual double nearCatchUpFactor() const { return myNearCatchUpFactor; }
    virtual void setNearCatchUpFactor(double factor) { assignSpecified(myNearCatchUpFactor, factor); }
    virtual double farCatchUpFactor() const { return myFarCatchUpFactor; }
    virtual void setFarCatchUpFactor(double factor) { assignSpecified(myFarCatchUpFactor, factor); }
    virtual double passedSlowDownFactor() const { return myPassedSlowDownFactor; }
    virtual void setPassedSlowDownFactor(double factor) { assignSpecified(myPassedSlowDownFactor, factor); }
    virtual double distanceReplanThreshold() const { return myDistanceReplanThreshold; }
    virtual void setDistanceReplanThreshold(double threshold) { assignSpecified(myDistanceReplanThreshold, threshold); }
    virtual double timeReplanThreshold() const { return myTimeReplanThreshold; }
    virtual void setTimeReplanThreshold(double threshold) { assignSpecified(myTimeReplanThreshold, threshold); }
    virtual double targetLookaheadTime() const { return myTargetLookaheadTime; }
    virtual void setTargetLookaheadTime(double time) { assignSpecified(myTargetLookaheadTime, time); }
    virtual double destinationSmoothingPeriod() const { return myDestinationSmoothingPeriod; }
    virtual void setDestinationSmoothingPeriod(double period) { assignSpecified(myDestinationSmoothingPeriod, period); }

private:
    AxRwReal myNearCatchUpFactor{
        {"near-catch-up-factor", "", "Multiple of the leader's speed when a little behind.", axNotNegative},
        1.1,
        registry()};
    AxRwReal myFarCatchUpFactor{
        {"far-catch-up-factor", "", "Multiple of the leader's speed when far behind.", axNotNegative}, 1.5, registry()};
    AxRwReal myPassedSlowDownFactor{
        {"passed-slow-down-factor", "", "Multiple of the leader's speed after having passed it.", axNotNegative},
        0.5,
        registry()};
    AxRwReal myDistanceReplanThreshold{
        {"distance-replan-threshold", "m", "Movement of the leader that calls for a new path.", axNotNegative},
        5.0,
        registry()};
    AxRwReal myTimeReplanThreshold{
        {"time-replan-threshold", "s", "Least time between two plans of the path.", axNotNegative}, 2.0, registry()};
    AxRwReal myTargetLookaheadTime{
        {"target-lookahead-time", "s", "How far ahead the leader's place is predicted.", axNotNegative},
        2.0,
        registry()};
    AxRwReal myDestinationSmoothingPeriod{{"destination-smoothing-period", "s",
                                           "Time over which the destination is averaged; 0: not at all.",
                                           axNotNegative},
                                          1.0,
                                          registry()};
};
