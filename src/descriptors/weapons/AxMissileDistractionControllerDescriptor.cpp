#include "AxMissileDistractionControllerDescriptor.h"

AxMissileDistractionControllerDescriptor::AxMissileDistractionControllerDescriptor(AxSymbolString name,
                                                                                   AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxMissileDistractionControllerDescriptor::~AxMissileDistractionControllerDescriptor() = default;
