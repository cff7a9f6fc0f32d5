#include "AxMovementBasedTerrainPreloadControllerDescriptor.h"

AxMovementBasedTerrainPreloadControllerDescriptor::AxMovementBasedTerrainPreloadControllerDescriptor(
    AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxMovementBasedTerrainPreloadControllerDescriptor::~AxMovementBasedTerrainPreloadControllerDescriptor() = default;
