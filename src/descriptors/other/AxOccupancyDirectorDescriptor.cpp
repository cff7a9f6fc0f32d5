#include "AxOccupancyDirectorDescriptor.h"

AxOccupancyDirectorDescriptor::AxOccupancyDirectorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxOccupancyDirectorDescriptor::~AxOccupancyDirectorDescriptor() = default;
