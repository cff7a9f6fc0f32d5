#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// A part that swings about a hinge, such as a door, hatch or ramp.
class ZEDOBJPARAM_API AxSwingingPartActuatorDescriptor
    : public AxDescriptorOf<AxSwingingPartActuatorDescriptor, AxActuatorComponentDescriptor,
                            "swinging-part-actuator-descriptor">
{
public:
    AxSwingingPartActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSwingingPartActuatorDescriptor(AxSwingingPartActuatorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxSwingingPartActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxSwingingPartActuatorDescriptor() override;

    virtual double closedAngle() const { return myClosedAngle; }
    virtual void setClosedAngle(double angle) { assignSpecified(myClosedAngle, angle); }
    virtual double openAngle() const { return myOpenAngle; }
    virtual void setOpenAngle(double angle) { assignSpecified(myOpenAngle, angle); }
    virtual AxString const& swingAxis() const { return mySwingAxis.value(); }
    virtual void setSwingAxis(AxString const& axis) { assignSpecified(mySwingAxis, axis); }
    virtual double swingRate() const { return mySwingRate; }
    virtual void setSwingRate(double rate) { assignSpecified(mySwingRate, rate); }

private:
    AxRwReal myClosedAngle{{"closed-angle",
                            "rad",
                            "Angle of the part about its hinge when closed.",
                            {axRadians(-360.0), axRadians(360.0)}},
                           registry()};
    AxRwReal myOpenAngle{
        {"open-angle", "rad", "Angle of the part about its hinge when open.", {axRadians(-360.0), axRadians(360.0)}},
        axRadians(90.0),
        registry()};
    AxRwString mySwingAxis{
        {"swing-axis", "", "Body axis that the hinge lies along: \"x\", \"y\" or \"z\"."}, "z", registry()};
    AxRwReal mySwingRate{{"swing-rate", "rad/s", "Speed at which the part opens and closes.", axNotNegative},
                         axRadians(30.0),
                         registry()};
};
