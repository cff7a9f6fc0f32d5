#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// Walks a human after another object that moves.
class ZEDOBJPARAM_API AxHumanFollowControllerDescriptor
    : public AxDescriptorOf<AxHumanFollowControllerDescriptor, AxComponentDescriptor,
                            "human-follow-controller-descriptor">
{
public:
    AxHumanFollowControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxHumanFollowControllerDescriptor(AxHumanFollowControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxHumanFollowControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxHumanFollowControllerDescriptor() override;

    virtual double distanceReplanThreshold() const { return myDistanceReplanThreshold; }
    virtual void setDistanceReplanThreshold(double threshold) { assignSpecified(myDistanceReplanThreshold, threshold); }
    virtual double timeReplanThreshold() const { return myTimeReplanThreshold; }
    virtual void setTimeReplanThreshold(double threshold) { assignSpecified(myTimeReplanThreshold, threshold); }
    virtual double targetLookaheadTime() const { return myTargetLookaheadTime; }
    virtual void setTargetLookaheadTime(double time) { assignSpecified(myTargetLookaheadTime, time); }
    virtual double destinationSmoothingPeriod() const { return myDestinationSmoothingPeriod; }
    virtual void setDestinationSmoothingPeriod(double period) { assignSpecified(myDestinationSmoothingPeriod, period); }

private:
    AxRwReal myDistanceReplanThreshold{
        {"distance-replan-threshold", "m", "Movement of the leader that calls for a new path.", axNotNegative},
        2.0,
        registry()};
    AxRwReal myTimeReplanThreshold{
        {"time-replan-threshold", "s", "Least time between two plans of the path.", axNotNegative}, 1.0, registry()};
    AxRwReal myTargetLookaheadTime{
        {"target-lookahead-time", "s", "How far ahead the leader's place is predicted.", axNotNegative},
        1.0,
        registry()};
    AxRwReal myDestinationSmoothingPeriod{{"destination-smoothing-period", "s",
                                           "Time over which the destination is averaged; 0: not at all.",
                                           axNotNegative},
                                          0.5,
                                          registry()};
};
