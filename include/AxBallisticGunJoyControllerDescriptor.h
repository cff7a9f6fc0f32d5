#pragma once

#include "AxBallisticGunControllerDescriptor.h"
#include "AxJoyDeviceControllerDescriptorTemplate.h"

extern template class ZEDOBJPARAM_API AxJoyDeviceControllerDescriptorTemplate<AxBallisticGunControllerDescriptor>;

/// A gun controller that is driven by a joystick, under its own type name. Its clones and what its creator makes are
/// plain template instances.
class ZEDOBJPARAM_API AxBallisticGunJoyControllerDescriptor
    : public AxJoyDeviceControllerDescriptorTemplate<AxBallisticGunControllerDescriptor>
{
public:
    using AxJoyDeviceControllerDescriptorTemplate::AxJoyDeviceControllerDescriptorTemplate;
    ~AxBallisticGunJoyControllerDescriptor() override;

    AxString type() const override;
};
