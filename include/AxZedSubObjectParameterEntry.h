#pragma once

#include "AxRecordOf.h"
#include "AxRwObjectType.h"
#include "AxRwOffsetVector.h"
#include "AxRwProperties.h"
#include "AxRwString.h"
#include "AxRwTaitBryan.h"

/// One object that is created with another one, as its subordinate or attached to it. Its name is its role.
class ZEDOBJPARAM_API AxZedSubObjectParameterEntry
    : public AxRecordOf<AxZedSubObjectParameterEntry, "AxZedSubObjectParameterEntry">
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxZedSubObjectParameterEntry() override;

    virtual AxObjectType const& objectType() const { return myObjectType.value(); }
    virtual void setObjectType(AxObjectType const& type) { assignSpecified(myObjectType, type); }
    virtual AxVector64 const& offset() const { return myOffset.value(); }
    virtual void setOffset(AxVector64 const& offset) { assignSpecified(myOffset, offset); }
    virtual AxTaitBryan const& orientation() const { return myOrientation.value(); }
    virtual void setOrientation(AxTaitBryan const& orientation) { assignSpecified(myOrientation, orientation); }
    virtual AxString const& attachedPart() const { return myAttachedPart.value(); }
    virtual void setAttachedPart(AxString const& part) { assignSpecified(myAttachedPart, part); }
    virtual AxRwProperties& parameterData() { return myParameterData; }
    virtual AxRwProperties const& parameterData() const { return myParameterData; }

private:
    AxRwObjectType myObjectType{{"object-type", "", "What is created."}, registry()};
    AxRwOffsetVector myOffset{{"offset", "m", "Place in the owner's frame."}, registry()};
    AxRwTaitBryan myOrientation{{"orientation", "rad", "Attitude relative to the owner."}, registry()};
    AxRwString myAttachedPart{{"attached-part", "", "Articulated part that carries it; empty: the body."}, registry()};
    AxRwProperties myParameterData{{"parameter-data", "", "Values given to the created object."}, registry()};
};
