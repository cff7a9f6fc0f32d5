#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// A part that slides along a line, such as a mast, periscope or dipping sonar.
class ZEDOBJPARAM_API AxTranslatablePartActuatorDescriptor
    : public AxDescriptorOf<AxTranslatablePartActuatorDescriptor, AxActuatorComponentDescriptor,
                            "translatable-part-actuator-descriptor">
{
public:
    AxTranslatablePartActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxTranslatablePartActuatorDescriptor(AxTranslatablePartActuatorDescriptor const& other,
                                         AxReaderWriterRegistry* registry)
        : AxTranslatablePartActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxTranslatablePartActuatorDescriptor() override;

    virtual double maxRange() const { return myMaxRange; }
    virtual void setMaxRange(double range) { assignSpecified(myMaxRange, range); }
    virtual double minRange() const { return myMinRange; }
    virtual void setMinRange(double range) { assignSpecified(myMinRange, range); }
    virtual double rangeChangeRate() const { return myRangeChangeRate; }
    virtual void setRangeChangeRate(double range) { assignSpecified(myRangeChangeRate, range); }
    virtual bool startAtLowestPosition() const { return myStartAtLowestPosition; }
    virtual void setStartAtLowestPosition(bool start) { assignSpecified(myStartAtLowestPosition, start); }

private:
    AxRwReal myMaxRange{{"max-range", "m", "Position of the part when fully out."}, 1.0, registry()};
    AxRwReal myMinRange{{"min-range", "m", "Position of the part when fully in."}, registry()};
    AxRwReal myRangeChangeRate{
        {"range-change-rate", "m/s", "Speed at which the part slides.", axNotNegative}, 0.2, registry()};
    AxRwBoolean myStartAtLowestPosition{
        {"start-at-lowest-position", "", "Whether the part starts fully in."}, true, registry()};
};
