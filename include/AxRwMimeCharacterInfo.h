#pragma once

#include "AxRecordOf.h"
#include "AxRwString.h"

/// Which animated human represents an object in a scene.
class ZEDOBJPARAM_API AxRwMimeCharacterInfo : public AxRecordOf<AxRwMimeCharacterInfo, "AxRwMimeCharacterInfo">
{
public:
    using AxRecordOf::AxRecordOf;
    AxRwMimeCharacterInfo(AxRwMimeCharacterInfo const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxRwMimeCharacterInfo() override;
    AxRwMimeCharacterInfo& operator=(AxRwMimeCharacterInfo const& other);

    virtual AxString const& character() const { return myCharacter.value(); }
    virtual void setCharacter(AxString const& character) { assignSpecified(myCharacter, character); }
    virtual AxString const& animationSet() const { return myAnimationSet.value(); }
    virtual void setAnimationSet(AxString const& set) { assignSpecified(myAnimationSet, set); }

private:
    AxRwString myCharacter{{"character", "", "Name of the human figure; empty: none."}, registry()};
    AxRwString myAnimationSet{{"animation-set", "", "Name of the set of motions it plays."}, registry()};
};
