#include "AxAggregateMoveAlongDescriptor.h"

AxAggregateMoveAlongDescriptor::AxAggregateMoveAlongDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAggregateMoveAlongDescriptor::~AxAggregateMoveAlongDescriptor() = default;
