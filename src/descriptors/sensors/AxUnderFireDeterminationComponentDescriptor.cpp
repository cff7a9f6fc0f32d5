#include "AxUnderFireDeterminationComponentDescriptor.h"

AxUnderFireDeterminationComponentDescriptor::AxUnderFireDeterminationComponentDescriptor(
    AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxUnderFireDeterminationComponentDescriptor::~AxUnderFireDeterminationComponentDescriptor() = default;
