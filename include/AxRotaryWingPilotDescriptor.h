#pragma once

#include "Ax1DRegularTableFn.h"
#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRotaryWingTaskDescriptor.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Flies a helicopter to points and in hover by a cascade of feedback loops: position, velocity, orientation, body
/// rate.
class ZEDOBJPARAM_API AxRotaryWingPilotDescriptor
    : public AxDescriptorOf<AxRotaryWingPilotDescriptor, AxRotaryWingTaskDescriptor,
                            "rot-wing-pilot-controller-descriptor">
{
public:
    AxRotaryWingPilotDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxRotaryWingPilotDescriptor(AxRotaryWingPilotDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxRotaryWingPilotDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxRotaryWingPilotDescriptor() override;

    virtual double pdRadius() const { return myPdRadius; }
    virtual void setPdRadius(double radius) { assignSpecified(myPdRadius, radius); }
    virtual double contourFlightVelocityThreshold() const { return myContourFlightVelocityThreshold; }
    virtual void setContourFlightVelocityThreshold(double threshold)
    {
        assignSpecified(myContourFlightVelocityThreshold, threshold);
    }
    virtual double contourFlightPositionThreshold() const { return myContourFlightPositionThreshold; }
    virtual void setContourFlightPositionThreshold(double threshold)
    {
        assignSpecified(myContourFlightPositionThreshold, threshold);
    }
    virtual double heightFeedbackGain() const { return myHeightFeedbackGain; }
    virtual void setHeightFeedbackGain(double gain) { assignSpecified(myHeightFeedbackGain, gain); }
    virtual Ax1DRegularTableFn const& heightVersusSpeed() const { return myHeightVersusSpeed; }
    virtual Ax1DRegularTableFn& heightVersusSpeed() { return myHeightVersusSpeed; }
    virtual bool isAlignWithTargets() const { return myIsAlignWithTargets; }
    virtual void setIsAlignWithTargets(bool align) { assignSpecified(myIsAlignWithTargets, align); }
    virtual double maxAngularVel() const { return myMaxAngularVel; }
    virtual void setMaxAngularVel(double velocity) { assignSpecified(myMaxAngularVel, velocity); }
    virtual double maxAngularAcc() const { return myMaxAngularAcc; }
    virtual void setMaxAngularAcc(double acceleration) { assignSpecified(myMaxAngularAcc, acceleration); }
    virtual double velToAlignDesired() const { return myVelToAlignDesired; }
    virtual void setVelToAlignDesired(double velocity) { assignSpecified(myVelToAlignDesired, velocity); }
    virtual double velToAlignActual() const { return myVelToAlignActual; }
    virtual void setVelToAlignActual(double velocity) { assignSpecified(myVelToAlignActual, velocity); }
    virtual double radiusTriggerVel() const { return myRadiusTriggerVel; }
    virtual void setRadiusTriggerVel(double velocity) { assignSpecified(myRadiusTriggerVel, velocity); }
    virtual double radiusFraction() const { return myRadiusFraction; }
    virtual void setRadiusFraction(double fraction) { assignSpecified(myRadiusFraction, fraction); }
    virtual double positionGain() const { return myPositionGain; }
    virtual void setPositionGain(double gain) { assignSpecified(myPositionGain, gain); }
    virtual double velocityGain() const { return myVelocityGain; }
    virtual void setVelocityGain(double gain) { assignSpecified(myVelocityGain, gain); }
    virtual double orientationGain() const { return myOrientationGain; }
    virtual void setOrientationGain(double gain) { assignSpecified(myOrientationGain, gain); }
    virtual double bodyRateGain() const { return myBodyRateGain; }
    virtual void setBodyRateGain(double gain) { assignSpecified(myBodyRateGain, gain); }
    virtual double noiseLevel() const { return myNoiseLevel; }
    virtual void setNoiseLevel(double level) { assignSpecified(myNoiseLevel, level); }
    virtual double landingFuelLevel() const { return myLandingFuelLevel; }
    virtual void setLandingFuelLevel(double level) { assignSpecified(myLandingFuelLevel, level); }

private:
    AxRwReal myPdRadius{
        {"pd-radius", "m", "Distance within which a point is held by position and speed feedback.", axNotNegative},
        50.0,
        registry()};
    AxRwReal myContourFlightVelocityThreshold{{"contour-flight-velocity-threshold", "m/s",
                                               "Speed from which the ground's contour is followed.", axNotNegative},
                                              5.0,
                                              registry()};
    AxRwReal myContourFlightPositionThreshold{{"contour-flight-position-threshold", "m",
                                               "Distance to the destination beyond which the contour is followed.",
                                               axNotNegative},
                                              10.0,
                                              registry()};
    AxRwReal myHeightFeedbackGain{
        {"height-feedback-gain", "1/s", "Climb rate per error of height.", axNotNegative}, 0.5, registry()};
    Ax1DRegularTableFn myHeightVersusSpeed{
        {"height-versus-speed", "m", "Height above ground by speed in m/s; empty: 0 at every speed."}, registry()};
    AxRwBoolean myIsAlignWithTargets{{"is-align-with-targets", "", "Whether the nose is turned to the target."},
                                     registry()};
    AxRwReal myMaxAngularVel{
        {"max-angular-vel", "rad/s", "Fastest turn about any body axis.", axNotNegative}, axRadians(45.0), registry()};
    AxRwReal myMaxAngularAcc{
        {"max-angular-acc", "rad/s2", "Fastest change of a turn about any body axis.", axNotNegative},
        0.1768,
        registry()};
    AxRwReal myVelToAlignDesired{{"vel-to-align-desired", "m/s",
                                  "Ordered speed from which the nose points along the flight path.", axNotNegative},
                                 5.0,
                                 registry()};
    AxRwReal myVelToAlignActual{
        {"vel-to-align-actual", "m/s", "Flown speed from which the nose points along the flight path.", axNotNegative},
        5.0,
        registry()};
    AxRwReal myRadiusTriggerVel{
        {"radius-trigger-vel", "m/s", "Speed below which the transition radius is cut.", axNotNegative},
        20.0,
        registry()};
    AxRwReal myRadiusFraction{
        {"radius-fraction", "", "Fraction of the transition radius that is left at low speed.", axFraction},
        0.5,
        registry()};
    AxRwReal myPositionGain{
        {"position-gain", "1/s", "Ordered speed per error of position.", axNotNegative}, 0.2, registry()};
    AxRwReal myVelocityGain{
        {"velocity-gain", "1/s", "Ordered acceleration per error of speed.", axNotNegative}, 0.6, registry()};
    AxRwReal myOrientationGain{
        {"orientation-gain", "1/s", "Ordered body rate per error of orientation.", axNotNegative}, 2.0, registry()};
    AxRwReal myBodyRateGain{
        {"body-rate-gain", "1/s", "Angular acceleration per error of body rate.", axNotNegative}, 4.0, registry()};
    AxRwReal myNoiseLevel{{"noise-level", "", "Random part of the pilot's control inputs; 0: none.", axFraction},
                          registry()};
    AxRwReal myLandingFuelLevel{
        {"landing-fuel-level", "", "Fraction of full fuel at which the pilot lands.", axFraction}, 0.1, registry()};
};
