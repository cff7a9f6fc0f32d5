#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxJoyDeviceControllerDescriptor.h"
#include "AxRwReal.h"

/// Lets a person walk a human by joystick.
class ZEDOBJPARAM_API AxHumanJoystickMovementControllerDescriptor
    : public AxDescriptorOf<AxHumanJoystickMovementControllerDescriptor, AxJoyDeviceControllerDescriptor,
                            "human-joystick-movement-controller-descriptor">
{
public:
    AxHumanJoystickMovementControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxHumanJoystickMovementControllerDescriptor(AxHumanJoystickMovementControllerDescriptor const& other,
                                                AxReaderWriterRegistry* registry)
        : AxHumanJoystickMovementControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxHumanJoystickMovementControllerDescriptor() override;

    virtual double maxTurningRate() const { return myMaxTurningRate; }
    virtual void setMaxTurningRate(double rate) { assignSpecified(myMaxTurningRate, rate); }

private:
    AxRwReal myMaxTurningRate{{"max-turning-rate", "rad/s", "Turn at full deflection of the stick.", axNotNegative},
                              axRadians(90.0),
                              registry()};
};
