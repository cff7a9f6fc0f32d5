#include "AxLimitExistenceControllerDescriptor.h"

AxLimitExistenceControllerDescriptor::AxLimitExistenceControllerDescriptor(AxSymbolString name,
                                                                           AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxLimitExistenceControllerDescriptor::~AxLimitExistenceControllerDescriptor() = default;
