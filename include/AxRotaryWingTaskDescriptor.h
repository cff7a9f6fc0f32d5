#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// Flies a helicopter's task. Base of the pilot, route and collision-avoidance controllers.
class ZEDOBJPARAM_API AxRotaryWingTaskDescriptor
    : public AxDescriptorOf<AxRotaryWingTaskDescriptor, AxComponentDescriptor, "rotary-wing-task-descriptor">
{
public:
    AxRotaryWingTaskDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxRotaryWingTaskDescriptor(AxRotaryWingTaskDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxRotaryWingTaskDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxRotaryWingTaskDescriptor() override;

    virtual double defaultAggressiveness() const { return myDefaultAggressiveness; }
    virtual void setDefaultAggressiveness(double aggressiveness)
    {
        assignSpecified(myDefaultAggressiveness, aggressiveness);
    }
    virtual double transitionRadius() const { return myTransitionRadius; }
    virtual void setTransitionRadius(double radius) { assignSpecified(myTransitionRadius, radius); }

private:
    AxRwReal myDefaultAggressiveness{{"default-aggressiveness", "",
                                      "Share of the helicopter's limits that is used unless ordered otherwise.",
                                      axFraction},
                                     0.5,
                                     registry()};
    AxRwReal myTransitionRadius{
        {"transition-radius", "m", "Distance to a point at which flight gives way to slowing down.", axNotNegative},
        100.0,
        registry()};
};
