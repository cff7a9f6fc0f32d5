#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Lands a fixed-wing aircraft: base leg, turn onto the runway's line, descent and touchdown.
class ZEDOBJPARAM_API AxFixedWingLandingDescriptor
    : public AxDescriptorOf<AxFixedWingLandingDescriptor, AxComponentDescriptor, "fixed-wing-landing-descriptor">
{
public:
    AxFixedWingLandingDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxFixedWingLandingDescriptor(AxFixedWingLandingDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxFixedWingLandingDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxFixedWingLandingDescriptor() override;

    virtual double landingSpeedRatio() const { return myLandingSpeedRatio; }
    virtual void setLandingSpeedRatio(double ratio) { assignSpecified(myLandingSpeedRatio, ratio); }
    virtual double landingDescentRate() const { return myLandingDescentRate; }
    virtual void setLandingDescentRate(double rate) { assignSpecified(myLandingDescentRate, rate); }
    virtual double landingGearDownDistance() const { return myLandingGearDownDistance; }
    virtual void setLandingGearDownDistance(double distance) { assignSpecified(myLandingGearDownDistance, distance); }
    virtual bool publishApproachRoute() const { return myPublishApproachRoute; }
    virtual void setPublishApproachRoute(bool publish) { assignSpecified(myPublishApproachRoute, publish); }
    virtual double thresholdAltitude() const { return myThresholdAltitude; }
    virtual void setThresholdAltitude(double altitude) { assignSpecified(myThresholdAltitude, altitude); }
    virtual double approachStartAltitude() const { return myApproachStartAltitude; }
    virtual void setApproachStartAltitude(double altitude) { assignSpecified(myApproachStartAltitude, altitude); }
    virtual double baseLegLength() const { return myBaseLegLength; }
    virtual void setBaseLegLength(double length) { assignSpecified(myBaseLegLength, length); }

private:
    AxRwReal myLandingSpeedRatio{
        {"landing-speed-ratio", "", "Approach speed as a multiple of the slowest speed of flight.", axNotNegative},
        1.3,
        registry()};
    AxRwReal myLandingDescentRate{
        {"landing-descent-rate", "m/s", "Sink rate on the glide path, positive down.", axNotNegative}, 3.5, registry()};
    AxRwReal myLandingGearDownDistance{
        {"landing-gear-down-distance", "m", "Distance to the threshold at which the gear is lowered.", axNotNegative},
        5000.0,
        registry()};
    AxRwBoolean myPublishApproachRoute{{"publish-approach-route", "", "Whether the approach is shown as a route."},
                                       registry()};
    AxRwReal myThresholdAltitude{
        {"threshold-altitude", "m", "Height above the runway when crossing its threshold.", axNotNegative},
        15.0,
        registry()};
    AxRwReal myApproachStartAltitude{
        {"approach-start-altitude", "m", "Height above the runway where the approach starts.", axNotNegative},
        450.0,
        registry()};
    AxRwReal myBaseLegLength{
        {"base-leg-length", "m", "Length of the leg flown across the runway's line.", axNotNegative},
        3000.0,
        registry()};
};
