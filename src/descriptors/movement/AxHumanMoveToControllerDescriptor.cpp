#include "AxHumanMoveToControllerDescriptor.h"

AxHumanMoveToControllerDescriptor::AxHumanMoveToControllerDescriptor(AxSymbolString name,
                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxHumanMoveToControllerDescriptor::~AxHumanMoveToControllerDescriptor() = default;
