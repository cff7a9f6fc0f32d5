#pragma once

#include "AxRecordOf.h"
#include "AxRwInt.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// One articulated part of an object, known by its name: a turret, a gun, a landing gear.
class ZEDOBJPARAM_API AxSimArtPartDescriptor : public AxRecordOf<AxSimArtPartDescriptor, "AxSimArtPartDescriptor">
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxSimArtPartDescriptor() override;

    /// Class of the part as the protocol counts them, such as 4096 for the first primary turret.
    virtual int partType() const;
    virtual void setPartType(int type);
    /// Name of the part that carries this one; empty: the body.
    virtual AxString const& attachedTo() const;
    virtual void setAttachedTo(AxString const& part);
    virtual AxVector64 const& offset() const;
    virtual void setOffset(AxVector64 const& offset);
    virtual double initialValue() const;
    virtual void setInitialValue(double value);

private:
    AxRwInt myPartType{{"part-type", "", "Articulated part class of the protocol (IEEE 1278.1).", {0.0, axUnbounded}},
                       registry()};
    AxRwString myAttachedTo{{"attached-to", "", "Name of the carrying part; empty: the body."}, registry()};
    AxRwOffsetVector myOffset{{"offset", "m", "Place of the part in its carrier's frame."}, registry()};
    AxRwReal myInitialValue{{"initial-value", "rad or m", "Angle or extension at the start, by the part's metric."},
                            registry()};
};
