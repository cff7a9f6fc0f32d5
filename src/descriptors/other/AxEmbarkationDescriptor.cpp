#include "AxEmbarkationDescriptor.h"

AxEmbarkationDescriptor::AxEmbarkationDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxEmbarkationDescriptor::~AxEmbarkationDescriptor() = default;
