#include "AxGroundMoveDirectionControllerDescriptor.h"

AxGroundMoveDirectionControllerDescriptor::AxGroundMoveDirectionControllerDescriptor(AxSymbolString name,
                                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxGroundMoveDirectionControllerDescriptor::~AxGroundMoveDirectionControllerDescriptor() = default;
