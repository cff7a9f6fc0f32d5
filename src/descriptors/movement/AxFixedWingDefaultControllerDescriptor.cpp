#include "AxFixedWingDefaultControllerDescriptor.h"

AxFixedWingDefaultControllerDescriptor::AxFixedWingDefaultControllerDescriptor(AxSymbolString name,
                                                                               AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxFixedWingDefaultControllerDescriptor::~AxFixedWingDefaultControllerDescriptor() = default;
