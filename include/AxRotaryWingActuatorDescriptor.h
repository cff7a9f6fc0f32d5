#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// Flies a helicopter within the limits of its object's record, and tells a landing from a crash.
class ZEDOBJPARAM_API AxRotaryWingActuatorDescriptor
    : public AxDescriptorOf<AxRotaryWingActuatorDescriptor, AxActuatorComponentDescriptor,
                            "rotary-wing-component-descriptor">
{
public:
    AxRotaryWingActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxRotaryWingActuatorDescriptor(AxRotaryWingActuatorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxRotaryWingActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxRotaryWingActuatorDescriptor() override;

    virtual double crashVelocity() const { return myCrashVelocity; }
    virtual void setCrashVelocity(double velocity) { assignSpecified(myCrashVelocity, velocity); }
    virtual double landingPositionThreshold() const { return myLandingPositionThreshold; }
    virtual void setLandingPositionThreshold(double height) { assignSpecified(myLandingPositionThreshold, height); }
    virtual double landingVelocityThreshold() const { return myLandingVelocityThreshold; }
    virtual void setLandingVelocityThreshold(double speed) { assignSpecified(myLandingVelocityThreshold, speed); }
    virtual double clampedFrameRate() const { return myClampedFrameRate; }
    virtual void setClampedFrameRate(double rate) { assignSpecified(myClampedFrameRate, rate); }
    virtual double dragCoefficient() const { return myDragCoefficient; }
    virtual void setDragCoefficient(double coefficient) { assignSpecified(myDragCoefficient, coefficient); }

private:
    AxRwReal myCrashVelocity{
        {"crash-velocity", "m/s", "Speed from which touching the ground is a crash.", axNotNegative}, 8.0, registry()};
    AxRwReal myLandingPositionThreshold{{"landing-position-threshold", "m",
                                         "Height above the ground within which a landing may be complete.",
                                         axNotNegative},
                                        1.0,
                                        registry()};
    AxRwReal myLandingVelocityThreshold{
        {"landing-velocity-threshold", "m/s", "Speed below which a landing may be complete.", axNotNegative},
        1.0,
        registry()};
    AxRwReal myClampedFrameRate{
        {"clamped-frame-rate", "Hz", "Lowest rate of integration; longer frames are divided.", axNotNegative},
        30.0,
        registry()};
    AxRwReal myDragCoefficient{
        {"drag-coefficient", "", "Drag of the airframe, dimensionless; 0: none.", axNotNegative}, 0.05, registry()};
};
