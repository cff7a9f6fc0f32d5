#include "AxHumanFleeControllerDescriptor.h"

AxHumanFleeControllerDescriptor::AxHumanFleeControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxHumanFleeControllerDescriptor::~AxHumanFleeControllerDescriptor() = default;
