#include "AxTurretScanComponentDescriptor.h"

AxTurretScanComponentDescriptor::AxTurretScanComponentDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxTurretScanComponentDescriptor::~AxTurretScanComponentDescriptor() = default;
