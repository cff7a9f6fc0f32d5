#include "AxTerrainPreloadControllerDescriptor.h"

AxTerrainPreloadControllerDescriptor::AxTerrainPreloadControllerDescriptor(AxSymbolString name,
                                                                           AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxTerrainPreloadControllerDescriptor::~AxTerrainPreloadControllerDescriptor() = default;
