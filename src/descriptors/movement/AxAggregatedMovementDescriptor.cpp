#include "AxAggregatedMovementDescriptor.h"

AxAggregatedMovementDescriptor::AxAggregatedMovementDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAggregatedMovementDescriptor::~AxAggregatedMovementDescriptor() = default;

AxAggregatedMovementDescriptor::MobilityEntry::~MobilityEntry() = default;
