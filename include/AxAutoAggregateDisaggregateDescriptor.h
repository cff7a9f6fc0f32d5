#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// A controller that splits a unit into its members when others come near and joins them again when they have left.
class ZEDOBJPARAM_API AxAutoAggregateDisaggregateDescriptor
    : public AxDescriptorOf<AxAutoAggregateDisaggregateDescriptor, AxComponentDescriptor,
                            "auto-aggregate-disaggregate-controller-descriptor">
{
public:
    AxAutoAggregateDisaggregateDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAutoAggregateDisaggregateDescriptor(AxAutoAggregateDisaggregateDescriptor const& other,
                                          AxReaderWriterRegistry* registry)
        : AxAutoAggregateDisaggregateDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAutoAggregateDisaggregateDescriptor() override;

    virtual double transitionTimeCheck() const { return myTransitionTimeCheck; }
    virtual void setTransitionTimeCheck(double time) { assignSpecified(myTransitionTimeCheck, time); }

private:
    AxRwReal myTransitionTimeCheck{
        {"transition-time-check", "s", "Time between two looks at whether to split or join.", axNotNegative},
        5.0,
        registry()};
};
