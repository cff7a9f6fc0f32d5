#include "AxFormationControllerDescriptor.h"

AxFormationControllerDescriptor::AxFormationControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxFormationControllerDescriptor::~AxFormationControllerDescriptor() = default;
