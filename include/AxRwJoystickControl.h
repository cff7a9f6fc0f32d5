#pragma once

#include "AxRecordOf.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwReal.h"
#include "AxRwTemplatedListPtr.h"

/// Maps one input of a joystick device to the engine control that the record is named after.
class ZEDOBJPARAM_API AxRwJoystickControl : public AxRecordOf<AxRwJoystickControl, "AxRwJoystickControl">
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxRwJoystickControl() override;

    /// Number of the device's axis or button, counted from 0; -1 for none.
    virtual int axis() const;
    virtual void setAxis(int axis);
    virtual int button() const;
    virtual void setButton(int button);
    virtual bool inverted() const;
    virtual void setInverted(bool inverted);
    virtual double deadZone() const;
    virtual void setDeadZone(double fraction);
    virtual double scale() const;
    virtual void setScale(double scale);

private:
    AxRwInt myAxis{{"axis", "", "Axis of the device, from 0; -1: none.", {-1.0, axUnbounded}}, -1, registry()};
    AxRwInt myButton{{"button", "", "Button of the device, from 0; -1: none.", {-1.0, axUnbounded}}, -1, registry()};
    AxRwBoolean myInverted{{"inverted", "", "Whether the sense of the input is turned round."}, registry()};
    AxRwReal myDeadZone{
        {"dead-zone", "", "Fraction of the travel around the centre that counts as 0.", {0.0, 1.0}}, 0.05, registry()};
    AxRwReal myScale{{"scale", "", "Factor from the input to the control."}, 1.0, registry()};
};

extern template class ZEDOBJPARAM_API AxRwTemplatedListPtr<AxRwJoystickControl, 1>;
