#include "AxAggregateReleaseBombControllerDescriptor.h"

AxAggregateReleaseBombControllerDescriptor::AxAggregateReleaseBombControllerDescriptor(AxSymbolString name,
                                                                                       AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAggregateReleaseBombControllerDescriptor::~AxAggregateReleaseBombControllerDescriptor() = default;
