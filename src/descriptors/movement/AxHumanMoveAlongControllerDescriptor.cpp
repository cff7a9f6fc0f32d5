#include "AxHumanMoveAlongControllerDescriptor.h"

AxHumanMoveAlongControllerDescriptor::AxHumanMoveAlongControllerDescriptor(AxSymbolString name,
                                                                           AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxHumanMoveAlongControllerDescriptor::~AxHumanMoveAlongControllerDescriptor() = default;
