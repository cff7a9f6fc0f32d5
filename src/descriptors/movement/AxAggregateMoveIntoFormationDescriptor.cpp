#include "AxAggregateMoveIntoFormationDescriptor.h"

AxAggregateMoveIntoFormationDescriptor::AxAggregateMoveIntoFormationDescriptor(AxSymbolString name,
                                                                               AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAggregateMoveIntoFormationDescriptor::~AxAggregateMoveIntoFormationDescriptor() = default;
