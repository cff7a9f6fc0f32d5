#include "AxLaserDetectorDescriptor.h"

AxLaserDetectorDescriptor::AxLaserDetectorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxLaserDetectorDescriptor::~AxLaserDetectorDescriptor() = default;
