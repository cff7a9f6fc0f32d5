#include "AxPropulsionNoiseGeneratorDescriptor.h"

AxPropulsionNoiseGeneratorDescriptor::AxPropulsionNoiseGeneratorDescriptor(AxSymbolString name,
                                                                           AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxPropulsionNoiseGeneratorDescriptor::~AxPropulsionNoiseGeneratorDescriptor() = default;
