#include "AxAggregateEmbarkationDescriptor.h"

AxAggregateEmbarkationDescriptor::AxAggregateEmbarkationDescriptor(AxSymbolString name,
                                                                   AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAggregateEmbarkationDescriptor::~AxAggregateEmbarkationDescriptor() = default;
