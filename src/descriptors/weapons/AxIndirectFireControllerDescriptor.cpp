#include "AxIndirectFireControllerDescriptor.h"

AxIndirectFireControllerDescriptor::AxIndirectFireControllerDescriptor(AxSymbolString name,
                                                                       AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxIndirectFireControllerDescriptor::~AxIndirectFireControllerDescriptor() = default;
