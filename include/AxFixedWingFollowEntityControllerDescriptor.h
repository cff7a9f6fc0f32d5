#pragma once

#include "AxDescriptorOf.h"
#include "AxFixedWingPilotControllerDescriptor.h"
#include "AxRwReal.h"

/// Keeps a fixed-wing aircraft behind another object, in the air and while taxiing.
class ZEDOBJPARAM_API AxFixedWingFollowEntityControllerDescriptor
    : public AxDescriptorOf<AxFixedWingFollowEntityControllerDescriptor, AxFixedWingPilotControllerDescriptor,
                            "fixed-wing-follow-entity-controller-descriptor">
{
public:
    AxFixedWingFollowEntityControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxFixedWingFollowEntityControllerDescriptor(AxFixedWingFollowEntityControllerDescriptor const& other,
                                                AxReaderWriterRegistry* registry)
        : AxFixedWingFollowEntityControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxFixedWingFollowEntityControllerDescriptor() override;

    virtual double taxiingNearCatchUpFactor() const { return myTaxiingNearCatchUpFactor; }
    virtual void setTaxiingNearCatchUpFactor(double factor) { assignSpecified(myTaxiingNearCatchUpFactor, factor); }
    virtual double taxiingFarCatchUpFactor() const { return myTaxiingFarCatchUpFactor; }
    virtual void setTaxiingFarCatchUpFactor(double factor) { assignSpecified(myTaxiingFarCatchUpFactor, factor); }
    virtual double taxiingPassedSlowDownFactor() const { return myTaxiingPassedSlowDownFactor; }
    virtual void setTaxiingPassedSlowDownFactor(double ratio) { assignSpecified(myTaxiingPassedSlowDownFactor, ratio); }
    virtual double flyingCatchUpFactor() const { return myFlyingCatchUpFactor; }
    virtual void setFlyingCatchUpFactor(double factor) { assignSpecified(myFlyingCatchUpFactor, factor); }
    virtual double flyingCatchUpDistance() const { return myFlyingCatchUpDistance; }
    virtual void setFlyingCatchUpDistance(double distance) { assignSpecified(myFlyingCatchUpDistance, distance); }

private:
    AxRwReal myTaxiingNearCatchUpFactor{
        {"taxiing-near-catch-up-factor", "", "Multiple of the leader's speed when a little behind.", axNotNegative},
        1.1,
        registry()};
    AxRwReal myTaxiingFarCatchUpFactor{
        {"taxiing-far-catch-up-factor", "", "Multiple of the leader's speed when far behind.", axNotNegative},
        1.5,
        registry()};
    AxRwReal myTaxiingPassedSlowDownFactor{
        {"taxiing-passed-slow-down-factor", "", "Multiple of the leader's speed when past it.", axNotNegative},
        0.5,
        registry()};
    AxRwReal myFlyingCatchUpFactor{
        {"flying-catch-up-factor", "", "Multiple of the leader's speed when far.", axNotNegative}, 1.2, registry()};
    AxRwReal myFlyingCatchUpDistance{
        {"flying-catch-up-distance", "m", "Distance from which it catches up.", axNotNegative}, 1000.0, registry()};
};
