#include "AxDestroyEngineeringObjectControllerDescriptor.h"

AxDestroyEngineeringObjectControllerDescriptor::AxDestroyEngineeringObjectControllerDescriptor(
    AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxDestroyEngineeringObjectControllerDescriptor::~AxDestroyEngineeringObjectControllerDescriptor() = default;
