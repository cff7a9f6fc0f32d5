#include "AxAzimuthMountComponentDescriptor.h"

AxAzimuthMountComponentDescriptor::AxAzimuthMountComponentDescriptor(AxSymbolString name,
                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxAzimuthMountComponentDescriptor::~AxAzimuthMountComponentDescriptor() = default;
