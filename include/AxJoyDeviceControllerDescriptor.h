#pragma once

#include "AxJoyDeviceControllerDescriptorTemplate.h"

/// A joystick controller under its own type name. Its clones and what its creator makes are plain template instances;
/// classes derived from it bring their own clone.
class ZEDOBJPARAM_API AxJoyDeviceControllerDescriptor
    : public AxJoyDeviceControllerDescriptorTemplate<AxComponentDescriptor>
{
public:
    using AxJoyDeviceControllerDescriptorTemplate::AxJoyDeviceControllerDescriptorTemplate;
    ~AxJoyDeviceControllerDescriptor() override;

    AxString type() const override;
};
