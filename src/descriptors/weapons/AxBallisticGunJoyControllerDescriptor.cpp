#include "AxBallisticGunJoyControllerDescriptor.h"

template class AxJoyDeviceControllerDescriptorTemplate<AxBallisticGunControllerDescriptor>;

AxBallisticGunJoyControllerDescriptor::~AxBallisticGunJoyControllerDescriptor() = default;

AxString AxBallisticGunJoyControllerDescriptor::type() const
{
    return "ballistic-gun-joy-ctrl-descriptor";
}
