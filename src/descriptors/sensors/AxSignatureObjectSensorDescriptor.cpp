#include "AxSignatureObjectSensorDescriptor.h"

AxSignatureObjectSensorDescriptor::AxSignatureObjectSensorDescriptor(AxSymbolString name,
                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxSignatureObjectSensorDescriptor::~AxSignatureObjectSensorDescriptor() = default;
