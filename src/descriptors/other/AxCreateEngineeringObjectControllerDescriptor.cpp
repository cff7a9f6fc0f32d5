#include "AxCreateEngineeringObjectControllerDescriptor.h"

AxCreateEngineeringObjectControllerDescriptor::AxCreateEngineeringObjectControllerDescriptor(
    AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxCreateEngineeringObjectControllerDescriptor::~AxCreateEngineeringObjectControllerDescriptor() = default;
