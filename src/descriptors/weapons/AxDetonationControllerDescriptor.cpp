#include "AxDetonationControllerDescriptor.h"

AxDetonationControllerDescriptor::AxDetonationControllerDescriptor(AxSymbolString name,
                                                                   AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxDetonationControllerDescriptor::~AxDetonationControllerDescriptor() = default;
