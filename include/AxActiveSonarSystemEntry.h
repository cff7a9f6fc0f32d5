#pragma once

#include "AxActiveSonarBeamEntry.h"
#include "AxRwOffsetVector.h"
#include "AxRwTemplatedListPtr.h"

/// An active sonar of an object and its beams, as the protocol describes them (IEEE 1278.1, underwater acoustic).
class ZEDOBJPARAM_API AxActiveSonarSystemEntry : public AxRecordOf<AxActiveSonarSystemEntry, "AxActiveSonarSystemEntry">
{
public:
    using BeamList = AxRwTemplatedListPtr<AxActiveSonarBeamEntry, 1>;

    using AxRecordOf::AxRecordOf;
    ~AxActiveSonarSystemEntry() override;

    virtual int acousticName() const { return myAcousticName; }
    virtual void setAcousticName(int name) { assignSpecified(myAcousticName, name); }
    virtual int acousticFunction() const { return myAcousticFunction; }
    virtual void setAcousticFunction(int function) { assignSpecified(myAcousticFunction, function); }
    virtual AxVector64 const& location() const { return myLocation.value(); }
    virtual void setLocation(AxVector64 const& location) { assignSpecified(myLocation, location); }
    virtual BeamList& beams() { return myBeams; }
    virtual BeamList const& beams() const { return myBeams; }

private:
    AxRwInt myAcousticName{{"acoustic-name", "", "What the sonar is, by the protocol's list.", {0.0, 65535.0}},
                           registry()};
    AxRwInt myAcousticFunction{
        {"acoustic-function", "", "What the sonar is for, by the protocol's list.", {0.0, 255.0}}, registry()};
    AxRwOffsetVector myLocation{{"location", "m", "Place of the sonar in the body frame."}, registry()};
    BeamList myBeams{{"beams", "", "What the sonar radiates."}, registry()};
};
