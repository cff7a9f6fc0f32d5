#include "AxLaunchExpendableResourceControllerDescriptor.h"

AxLaunchExpendableResourceControllerDescriptor::AxLaunchExpendableResourceControllerDescriptor(
    AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
    myCounterMeasuresSelectTableFile.setContent(&myCounterMeasuresSelectTable);
}

AxLaunchExpendableResourceControllerDescriptor::~AxLaunchExpendableResourceControllerDescriptor() = default;
