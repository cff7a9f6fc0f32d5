#include "AxAggregateAntiAirControllerDescriptor.h"

AxAggregateAntiAirControllerDescriptor::AxAggregateAntiAirControllerDescriptor(AxSymbolString name,
                                                                               AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAggregateAntiAirControllerDescriptor::~AxAggregateAntiAirControllerDescriptor() = default;
