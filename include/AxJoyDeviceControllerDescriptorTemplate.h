#pragma once

#include "AxDescriptorOf.h"
#include "AxRwJoystickControl.h"

/// Any descriptor, driven by a joystick device. Keeps the type name of `Base`, so that it is written as a `Base`.
template <class Base>
class AxJoyDeviceControllerDescriptorTemplate
    : public AxDescriptorOf<AxJoyDeviceControllerDescriptorTemplate<Base>, Base>
{
    using Shape = AxDescriptorOf<AxJoyDeviceControllerDescriptorTemplate<Base>, Base>;

public:
    using Controls = AxRwTemplatedListPtr<AxRwJoystickControl, 1>;
    using Shape::Shape;
    AxJoyDeviceControllerDescriptorTemplate(AxJoyDeviceControllerDescriptorTemplate const& other,
                                            AxReaderWriterRegistry* registry)
        : AxJoyDeviceControllerDescriptorTemplate(other.AxReaderWriter::name(), registry)
    {
        this->assign(other);
    }

    /// Name of the device; empty for none.
    virtual AxString const& joystickDevice() const { return myJoystickDevice.value(); }
    virtual void setJoystickDevice(AxString const& device) { this->assignSpecified(myJoystickDevice, device); }
    /// The mappings, keyed by the names of the engine's controls.
    virtual Controls const& joystickControls() const { return myJoystickControls; }
    virtual Controls& joystickControls() { return myJoystickControls; }

private:
    AxRwString myJoystickDevice{{"joystick-device", "", "Name of the device; empty: none."}, this->registry()};
    Controls myJoystickControls{{"joystick-controls", "", "What each engine control takes from the device."},
                                this->registry()};
};

extern template class ZEDOBJPARAM_API AxJoyDeviceControllerDescriptorTemplate<AxComponentDescriptor>;
