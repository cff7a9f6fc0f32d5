#pragma once

#include "AxEmitterBeamEntry.h"
#include "AxRwOffsetVector.h"
#include "AxRwTemplatedListPtr.h"

/// An emitter of an object and its beams, as the protocol describes them (IEEE 1278.1, electromagnetic emission).
class ZEDOBJPARAM_API AxEmitterSystemEntry : public AxRecordOf<AxEmitterSystemEntry, "AxEmitterSystemEntry">
{
public:
    using BeamList = AxRwTemplatedListPtr<AxEmitterBeamEntry, 1>;

    using AxRecordOf::AxRecordOf;
    ~AxEmitterSystemEntry() override;

    virtual int emitterName() const { return myEmitterName; }
    virtual void setEmitterName(int name) { assignSpecified(myEmitterName, name); }
    virtual int emitterFunction() const { return myEmitterFunction; }
    virtual void setEmitterFunction(int function) { assignSpecified(myEmitterFunction, function); }
    virtual int emitterNumber() const { return myEmitterNumber; }
    virtual void setEmitterNumber(int number) { assignSpecified(myEmitterNumber, number); }
    virtual AxVector64 const& location() const { return myLocation.value(); }
    virtual void setLocation(AxVector64 const& location) { assignSpecified(myLocation, location); }
    virtual BeamList& beams() { return myBeams; }
    virtual BeamList const& beams() const { return myBeams; }

private:
    AxRwInt myEmitterName{{"emitter-name", "", "What the emitter is, by the protocol's list.", {0.0, 65535.0}},
                          registry()};
    AxRwInt myEmitterFunction{
        {"emitter-function", "", "What the emitter is for, by the protocol's list.", {0.0, 255.0}}, registry()};
    AxRwInt myEmitterNumber{
        {"emitter-number", "", "Number of the emitter; 0: by its position on the object, from 1.", {0.0, 255.0}},
        registry()};
    AxRwOffsetVector myLocation{{"location", "m", "Place of the emitter in the body frame."}, registry()};
    BeamList myBeams{{"beams", "", "What the emitter radiates."}, registry()};
};
