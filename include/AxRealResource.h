#pragma once

#include "AxRwReal.h"
#include "AxSimResource.h"

/// A supply that is measured, in the unit that its consumers agree on.
class ZEDOBJPARAM_API AxRealResource : public AxRecordOf<AxRealResource, "real-resource", AxSimResource>
{
public:
    using AxRecordOf::AxRecordOf;
    AxRealResource(AxRealResource const& other, AxReaderWriterRegistry* registry = nullptr);
    AxRealResource& operator=(AxRealResource const& other);
    ~AxRealResource() override;

    AxSimResource* clone(AxReaderWriterRegistry* registry) const override { return copy(registry); }

    virtual double amount() const { return myAmount; }
    virtual void setAmount(double amount) { assignSpecified(myAmount, amount); }
    /// Negative: not limited.
    virtual double capacity() const { return myCapacity; }
    virtual void setCapacity(double capacity) { assignSpecified(myCapacity, capacity); }

private:
    AxRwReal myAmount{{"amount", "", "Quantity at the start.", {0.0, axUnbounded}}, registry()};
    AxRwReal myCapacity{{"capacity", "", "Most it can hold; negative: not limited."}, -1.0, registry()};
};
