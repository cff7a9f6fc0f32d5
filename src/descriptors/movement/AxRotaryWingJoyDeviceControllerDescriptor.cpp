#include "AxRotaryWingJoyDeviceControllerDescriptor.h"

AxRotaryWingJoyDeviceControllerDescriptor::AxRotaryWingJoyDeviceControllerDescriptor(AxSymbolString name,
                                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxRotaryWingJoyDeviceControllerDescriptor::~AxRotaryWingJoyDeviceControllerDescriptor() = default;
