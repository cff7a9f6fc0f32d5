#include "AxElevationMountComponentDescriptor.h"

AxElevationMountComponentDescriptor::AxElevationMountComponentDescriptor(AxSymbolString name,
                                                                         AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxElevationMountComponentDescriptor::~AxElevationMountComponentDescriptor() = default;
