#include "AxHumanFollowControllerDescriptor.h"

AxHumanFollowControllerDescriptor::AxHumanFollowControllerDescriptor(AxSymbolString name,
                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxHumanFollowControllerDescriptor::~AxHumanFollowControllerDescriptor() = default;
