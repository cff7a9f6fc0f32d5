#pragma once

#include "AxRecordOf.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// A place on a carrier's body where its slots are entered.
class ZEDOBJPARAM_API AxLoadPoint : public AxRecordOf<AxLoadPoint, "AxLoadPoint">
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxLoadPoint() override;

    virtual AxString const& loadPointName() const { return myLoadPointName.value(); }
    virtual void setLoadPointName(AxString const& name) { assignSpecified(myLoadPointName, name); }
    virtual AxVector64 const& offset() const { return myOffset.value(); }
    virtual void setOffset(AxVector64 const& offset) { assignSpecified(myOffset, offset); }
    virtual double heading() const { return myHeading; }
    virtual void setHeading(double radians) { assignSpecified(myHeading, radians); }
    virtual double radius() const { return myRadius; }
    virtual void setRadius(double radius) { assignSpecified(myRadius, radius); }

    char const* xmlType() const override { return "loadPoint"; }

private:
    AxRwString myLoadPointName{{"load-point-name", "", "What slots call the place."}, registry()};
    AxRwOffsetVector myOffset{{"offset", "m", "Place in the carrier's body frame."}, registry()};
    AxRwReal myHeading{{"heading", "rad", "Direction in which it is entered, relative to the carrier."}, registry()};
    AxRwReal myRadius{{"radius", "m", "How near a passenger must come.", {0.0, axUnbounded}}, 1.0, registry()};
};
