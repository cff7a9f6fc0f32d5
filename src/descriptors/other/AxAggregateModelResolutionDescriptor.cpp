#include "AxAggregateModelResolutionDescriptor.h"

AxAggregateModelResolutionDescriptor::AxAggregateModelResolutionDescriptor(AxSymbolString name,
                                                                           AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAggregateModelResolutionDescriptor::~AxAggregateModelResolutionDescriptor() = default;
