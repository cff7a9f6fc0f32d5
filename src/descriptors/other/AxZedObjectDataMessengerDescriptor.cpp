#include "AxZedObjectDataMessengerDescriptor.h"

AxZedObjectDataMessengerDescriptor::AxZedObjectDataMessengerDescriptor(AxSymbolString name,
                                                                       AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxZedObjectDataMessengerDescriptor::~AxZedObjectDataMessengerDescriptor() = default;
