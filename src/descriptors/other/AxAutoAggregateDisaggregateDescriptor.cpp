#include "AxAutoAggregateDisaggregateDescriptor.h"

AxAutoAggregateDisaggregateDescriptor::AxAutoAggregateDisaggregateDescriptor(AxSymbolString name,
                                                                             AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAutoAggregateDisaggregateDescriptor::~AxAutoAggregateDisaggregateDescriptor() = default;
