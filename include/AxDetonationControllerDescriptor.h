#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwObjectTypeList.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// The fuse of a mine, bomb or warhead: decides when it detonates and how often it fails.
class ZEDOBJPARAM_API AxDetonationControllerDescriptor
    : public AxDescriptorOf<AxDetonationControllerDescriptor, AxComponentDescriptor, "detonation-controller-descriptor">
{
public:
    AxDetonationControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxDetonationControllerDescriptor(AxDetonationControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxDetonationControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxDetonationControllerDescriptor() override;

    virtual AxString const& fuseType() const { return myFuseType.value(); }
    virtual void setFuseType(AxString const& type) { assignSpecified(myFuseType, type); }
    virtual double detonationProximityDistance() const { return myDetonationProximityDistance; }
    virtual void setDetonationProximityDistance(double distance)
    {
        assignSpecified(myDetonationProximityDistance, distance);
    }
    virtual double malfunctionPercentage() const { return myMalfunctionPercentage; }
    virtual void setMalfunctionPercentage(double percentage) { assignSpecified(myMalfunctionPercentage, percentage); }
    virtual bool armed() const { return myArmed; }
    virtual void setArmed(bool armed) { assignSpecified(myArmed, armed); }
    virtual AxRwObjectTypeList const& objectTypesToDetect() const { return myObjectTypesToDetect; }
    virtual AxRwObjectTypeList& objectTypesToDetect() { return myObjectTypesToDetect; }

private:
    AxRwString myFuseType{
        {"fuse-type", "", "What sets the charge off: \"contact\", \"proximity\", \"timed\" or \"command\"."},
        "contact",
        registry()};
    AxRwReal myDetonationProximityDistance{{"detonation-proximity-distance", "m",
                                            "Distance of a detected object at which a proximity fuse works.",
                                            axNotNegative},
                                           5.0,
                                           registry()};
    AxRwReal myMalfunctionPercentage{
        {"malfunction-percentage", "%", "Share of charges that fail to detonate.", {0.0, 100.0}}, registry()};
    AxRwBoolean myArmed{{"armed", "", "Whether the fuse is live from the start."}, true, registry()};
    AxRwObjectTypeList myObjectTypesToDetect{
        {"object-types-to-detect", "", "Patterns of what the fuse reacts to; empty: any type."}, registry()};
};
