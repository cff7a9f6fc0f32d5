#include "AxAggregateIndirectFireControllerDescriptor.h"

AxAggregateIndirectFireControllerDescriptor::AxAggregateIndirectFireControllerDescriptor(
    AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAggregateIndirectFireControllerDescriptor::~AxAggregateIndirectFireControllerDescriptor() = default;
