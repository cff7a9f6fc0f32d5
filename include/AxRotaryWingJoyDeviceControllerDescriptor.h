#pragma once

#include "AxDescriptorOf.h"
#include "AxJoyDeviceControllerDescriptor.h"
#include "AxRwReal.h"

/// Lets a person fly a helicopter by joystick, with feedback that keeps it steady.
class ZEDOBJPARAM_API AxRotaryWingJoyDeviceControllerDescriptor
    : public AxDescriptorOf<AxRotaryWingJoyDeviceControllerDescriptor, AxJoyDeviceControllerDescriptor,
                            "rotary-wing-joy-controller-descriptor">
{
public:
    AxRotaryWingJoyDeviceControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxRotaryWingJoyDeviceControllerDescriptor(AxRotaryWingJoyDeviceControllerDescriptor const& other,
                                              AxReaderWriterRegistry* registry)
        : AxRotaryWingJoyDeviceControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxRotaryWingJoyDeviceControllerDescriptor() override;

    virtual double controllerRiseTime() const { return myControllerRiseTime; }
    virtual void setControllerRiseTime(double time) { assignSpecified(myControllerRiseTime, time); }
    virtual double yawControlFeedbackConstant() const { return myYawControlFeedbackConstant; }
    virtual void setYawControlFeedbackConstant(double constant)
    {
        assignSpecified(myYawControlFeedbackConstant, constant);
    }
    virtual double pitchControlFeedbackConstant() const { return myPitchControlFeedbackConstant; }
    virtual void setPitchControlFeedbackConstant(double constant)
    {
        assignSpecified(myPitchControlFeedbackConstant, constant);
    }
    virtual double rollControlFeedbackConstant() const { return myRollControlFeedbackConstant; }
    virtual void setRollControlFeedbackConstant(double constant)
    {
        assignSpecified(myRollControlFeedbackConstant, constant);
    }

private:
    AxRwReal myControllerRiseTime{
        {"controller-rise-time", "s", "Time in which the controls follow the stick; 0: at once.", axNotNegative},
        0.5,
        registry()};
    AxRwReal myYawControlFeedbackConstant{
        {"yaw-control-feedback-constant", "", "Multiplier of the damping in yaw.", axNotNegative}, 1.0, registry()};
    AxRwReal myPitchControlFeedbackConstant{
        {"pitch-control-feedback-constant", "", "Multiplier of the damping in pitch.", axNotNegative}, 1.0, registry()};
    AxRwReal myRollControlFeedbackConstant{
        {"roll-control-feedback-constant", "", "Multiplier of the damping in roll.", axNotNegative}, 1.0, registry()};
};
