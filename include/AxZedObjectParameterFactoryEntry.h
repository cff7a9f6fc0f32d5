#pragma once

#include "AxZedObjectParameters.h"

/// A type name and the function that makes an empty record of that type.
class ZEDOBJPARAM_API AxZedObjectParameterFactoryEntry
{
public:
    AxZedObjectParameterFactoryEntry() = default;
    AxZedObjectParameterFactoryEntry(AxZedObjectParameterFactoryEntry const&) = default;
    AxZedObjectParameterFactoryEntry& operator=(AxZedObjectParameterFactoryEntry const&) = default;

    // ---- The order of the virtual operations is part of the interface. ----
    virtual ~AxZedObjectParameterFactoryEntry();
    virtual AxString const& typeToCreate() const;
    virtual void setTypeToCreate(AxString const& type);
    virtual AxZedObjectParameters::CreatorFcn creatorFcn() const;
    virtual void setCreatorFcn(AxZedObjectParameters::CreatorFcn creator);
    /// A new entry copied from the argument.
    virtual AxZedObjectParameterFactoryEntry* clone(AxZedObjectParameterFactoryEntry const& other) const;

private:
    AxString myTypeToCreate;
    AxZedObjectParameters::CreatorFcn myCreatorFcn = nullptr;
};
