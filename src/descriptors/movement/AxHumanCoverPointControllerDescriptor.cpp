#include "AxHumanCoverPointControllerDescriptor.h"

AxHumanCoverPointControllerDescriptor::AxHumanCoverPointControllerDescriptor(AxSymbolString name,
                                                                             AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxHumanCoverPointControllerDescriptor::~AxHumanCoverPointControllerDescriptor() = default;
