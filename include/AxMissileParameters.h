#pragma once

#include "AxMovingObjectParameters.h"

/// A guided weapon in flight.
class ZEDOBJPARAM_API AxMissileParameters
    : public AxObjectRecordOf<AxMissileParameters, AxMovingObjectParameters, "missile-param">
{
public:
    using AxObjectRecordOf::AxObjectRecordOf;
    ~AxMissileParameters() override;

    virtual double range() const { return myRange; }
    virtual void setRange(double metres) { assignSpecified(myRange, metres); }
    virtual double maxManeuverGs() const { return myMaxManeuverGs; }
    virtual void setMaxManeuverGs(double gs) { assignSpecified(myMaxManeuverGs, gs); }
    virtual bool fireAndForget() const { return myFireAndForget; }
    virtual void setFireAndForget(bool forget) { assignSpecified(myFireAndForget, forget); }
    virtual double cepRadius() const { return myCepRadius; }
    virtual void setCepRadius(double metres) { assignSpecified(myCepRadius, metres); }
    virtual double transitionAngle() const { return myTransitionAngle; }
    virtual void setTransitionAngle(double angle) { assignSpecified(myTransitionAngle, angle); }
    virtual double proportionalNavigationGain() const { return myProportionalNavigationGain; }
    virtual void setProportionalNavigationGain(double gain) { assignSpecified(myProportionalNavigationGain, gain); }
    virtual AxString const& rangeName() const { return myRangeName.value(); }
    virtual void setRangeName(AxString const& name) { assignSpecified(myRangeName, name); }

protected:
    AxMissileParameters(AxMissileParameters const& other, AxSymbolString name, AxReaderWriterRegistry* parent)
        : AxMissileParameters(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }

private:
    AxRwReal myRange{{"range", "m", "Largest distance flown.", {0.0, axUnbounded}}, 5000.0, registry()};
    AxRwReal myMaxManeuverGs{
        {"max-maneuver-gs", "g", "Largest acceleration across the path.", {0.0, axUnbounded}}, 20.0, registry()};
    AxRwBoolean myFireAndForget{{"fire-and-forget", "", "Whether it guides itself once launched."}, registry()};
    AxRwReal myCepRadius{
        {"cep-radius", "m", "Radius around the aim point that holds half of the hits; 0: no miss.", {0.0, axUnbounded}},
        registry()};
    AxRwReal myTransitionAngle{{"transition-angle",
                                "rad",
                                "Angle to the target at which terminal guidance takes over.",
                                {0.0, 3.141592653589793}},
                               0.1745,
                               registry()};
    AxRwReal myProportionalNavigationGain{
        {"proportional-navigation-gain", "", "Rate of turn as a multiple of the line of sight's.", {0.0, axUnbounded}},
        4.0,
        registry()};
    AxRwString myRangeName{{"range-name", "", "Name under which the range is shown."}, registry()};
};
