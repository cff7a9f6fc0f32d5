#include "AxSimpleProximitySensorDescriptor.h"

AxSimpleProximitySensorDescriptor::AxSimpleProximitySensorDescriptor(AxSymbolString name,
                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxSimpleProximitySensorDescriptor::~AxSimpleProximitySensorDescriptor() = default;
