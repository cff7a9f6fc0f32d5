#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"

/// Moves the subordinates of a unit to their places in a formation.
class ZEDOBJPARAM_API AxAggregateMoveIntoFormationDescriptor
    : public AxDescriptorOf<AxAggregateMoveIntoFormationDescriptor, AxComponentDescriptor,
                            "aggregate-move-into-formation-controller-descriptor">
{
public:
    AxAggregateMoveIntoFormationDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAggregateMoveIntoFormationDescriptor(AxAggregateMoveIntoFormationDescriptor const& other,
                                           AxReaderWriterRegistry* registry)
        : AxAggregateMoveIntoFormationDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAggregateMoveIntoFormationDescriptor() override;

    virtual bool stopMovingUponArrival() const { return myStopMovingUponArrival; }
    virtual void setStopMovingUponArrival(bool stop) { assignSpecified(myStopMovingUponArrival, stop); }
    virtual bool turnToHeadingUponArrival() const { return myTurnToHeadingUponArrival; }
    virtual void setTurnToHeadingUponArrival(bool turn) { assignSpecified(myTurnToHeadingUponArrival, turn); }
    virtual bool groundClamp() const { return myGroundClamp; }
    virtual void setGroundClamp(bool clamp) { assignSpecified(myGroundClamp, clamp); }

private:
    AxRwBoolean myStopMovingUponArrival{
        {"stop-moving-upon-arrival", "", "Whether a subordinate stops once it is in place."}, true, registry()};
    AxRwBoolean myTurnToHeadingUponArrival{
        {"turn-to-heading-upon-arrival", "", "Whether a subordinate in place takes the formation's heading."},
        true,
        registry()};
    AxRwBoolean myGroundClamp{
        {"ground-clamp", "", "Whether places of the formation are put on the ground."}, true, registry()};
};
