#include "AxLasingControllerDescriptor.h"

AxLasingControllerDescriptor::AxLasingControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
    myTargetingControl.setValueSpecified(false, false);
}

AxLasingControllerDescriptor::~AxLasingControllerDescriptor() = default;
