#include "AxAggregatedMoveToDescriptor.h"

AxAggregatedMoveToDescriptor::AxAggregatedMoveToDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAggregatedMoveToDescriptor::~AxAggregatedMoveToDescriptor() = default;
