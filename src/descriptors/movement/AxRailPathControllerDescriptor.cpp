#include "AxRailPathControllerDescriptor.h"

AxRailPathControllerDescriptor::AxRailPathControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxRailPathControllerDescriptor::~AxRailPathControllerDescriptor() = default;
