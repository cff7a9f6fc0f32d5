#include "AxEventTriggerControllerDescriptor.h"

AxEventTriggerControllerDescriptor::AxEventTriggerControllerDescriptor(AxSymbolString name,
                                                                       AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxEventTriggerControllerDescriptor::~AxEventTriggerControllerDescriptor() = default;
