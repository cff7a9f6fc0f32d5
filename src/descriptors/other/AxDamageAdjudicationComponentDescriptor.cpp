#include "AxDamageAdjudicationComponentDescriptor.h"

AxDamageAdjudicationComponentDescriptor::AxDamageAdjudicationComponentDescriptor(AxSymbolString name,
                                                                                 AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxDamageAdjudicationComponentDescriptor::~AxDamageAdjudicationComponentDescriptor() = default;
