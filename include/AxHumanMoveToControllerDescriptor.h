#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// Walks a human to a point and gives up where there is no way through.
class ZEDOBJPARAM_API AxHumanMoveToControllerDescriptor
    : public AxDescriptorOf<AxHumanMoveToControllerDescriptor, AxComponentDescriptor,
                            "human-move-to-controller-descriptor">
{
public:
    AxHumanMoveToControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxHumanMoveToControllerDescriptor(AxHumanMoveToControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxHumanMoveToControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxHumanMoveToControllerDescriptor() override;

    virtual double atDistance() const { return myAtDistance; }
    virtual void setAtDistance(double distance) { assignSpecified(myAtDistance, distance); }
    virtual double stuckAtDistance() const { return myStuckAtDistance; }
    virtual void setStuckAtDistance(double distance) { assignSpecified(myStuckAtDistance, distance); }
    virtual double stuckGiveUpTime() const { return myStuckGiveUpTime; }
    virtual void setStuckGiveUpTime(double time) { assignSpecified(myStuckGiveUpTime, time); }

private:
    AxRwReal myAtDistance{
        {"at-distance", "m", "Distance at which the destination counts as reached.", axNotNegative}, 0.5, registry()};
    AxRwReal myStuckAtDistance{
        {"stuck-at-distance", "m", "Distance at which a destination that is blocked will do.", axNotNegative},
        2.0,
        registry()};
    AxRwReal myStuckGiveUpTime{
        {"stuck-give-up-time", "s", "Time without progress after which the move is given up.", axNotNegative},
        10.0,
        registry()};
};
