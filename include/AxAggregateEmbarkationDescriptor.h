#pragma once

#include "AxDescriptorOf.h"
#include "AxEmbarkationDescriptor.h"
#include "AxRwBoolean.h"

/// Embarkation of a unit: it goes aboard as a whole or leaves that to its members.
class ZEDOBJPARAM_API AxAggregateEmbarkationDescriptor
    : public AxDescriptorOf<AxAggregateEmbarkationDescriptor, AxEmbarkationDescriptor,
                            "aggregate-embarkation-descriptor">
{
public:
    AxAggregateEmbarkationDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAggregateEmbarkationDescriptor(AxAggregateEmbarkationDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxAggregateEmbarkationDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAggregateEmbarkationDescriptor() override;

    virtual bool embarkAggregate() const { return myEmbarkAggregate; }
    virtual void setEmbarkAggregate(bool embark) { assignSpecified(myEmbarkAggregate, embark); }

private:
    AxRwBoolean myEmbarkAggregate{
        {"embark-aggregate", "", "Whether the unit goes aboard as a whole."}, true, registry()};
};
