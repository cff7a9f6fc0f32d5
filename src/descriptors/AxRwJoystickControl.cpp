#include "AxRwJoystickControl.h"

template class AxRwTemplatedListPtr<AxRwJoystickControl, 1>;

AxRwJoystickControl::~AxRwJoystickControl() = default;

int AxRwJoystickControl::axis() const
{
    return myAxis;
}

void AxRwJoystickControl::setAxis(int axis)
{
    assignSpecified(myAxis, axis);
}

int AxRwJoystickControl::button() const
{
    return myButton;
}

void AxRwJoystickControl::setButton(int button)
{
    assignSpecified(myButton, button);
}

bool AxRwJoystickControl::inverted() const
{
    return myInverted;
}

void AxRwJoystickControl::setInverted(bool inverted)
{
    assignSpecified(myInverted, inverted);
}

double AxRwJoystickControl::deadZone() const
{
    return myDeadZone;
}

void AxRwJoystickControl::setDeadZone(double fraction)
{
    assignSpecified(myDeadZone, fraction);
}

double AxRwJoystickControl::scale() const
{
    return myScale;
}

void AxRwJoystickControl::setScale(double scale)
{
    assignSpecified(myScale, scale);
}
