#pragma once

#include "AxRwInt.h"
#include "AxSimResource.h"

/// A supply that is counted.
class ZEDOBJPARAM_API AxIntegerResource : public AxRecordOf<AxIntegerResource, "integer-resource", AxSimResource>
{
public:
    using AxRecordOf::AxRecordOf;
    AxIntegerResource(AxIntegerResource const& other, AxReaderWriterRegistry* registry = nullptr);
    AxIntegerResource& operator=(AxIntegerResource const& other);
    ~AxIntegerResource() override;

    AxSimResource* clone(AxReaderWriterRegistry* registry) const override { return copy(registry); }

    virtual int amount() const { return myAmount; }
    virtual void setAmount(int amount) { assignSpecified(myAmount, amount); }
    /// Negative: not limited.
    virtual int capacity() const { return myCapacity; }
    virtual void setCapacity(int capacity) { assignSpecified(myCapacity, capacity); }

private:
    AxRwInt myAmount{{"amount", "", "Pieces at the start.", {0.0, axUnbounded}}, registry()};
    AxRwInt myCapacity{{"capacity", "", "Most pieces it can hold; negative: not limited."}, -1, registry()};
};
