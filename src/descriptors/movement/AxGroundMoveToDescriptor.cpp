#include "AxGroundMoveToDescriptor.h"

AxGroundMoveToDescriptor::AxGroundMoveToDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxGroundMoveToDescriptor::~AxGroundMoveToDescriptor() = default;
