#include "AxJoyDeviceControllerDescriptor.h"

AxJoyDeviceControllerDescriptor::~AxJoyDeviceControllerDescriptor() = default;

AxString AxJoyDeviceControllerDescriptor::type() const
{
    return "joy-controller-descriptor";
}
