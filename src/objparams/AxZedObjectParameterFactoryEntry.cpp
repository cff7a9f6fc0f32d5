#include "AxZedObjectParameterFactoryEntry.h"

AxZedObjectParameterFactoryEntry::~AxZedObjectParameterFactoryEntry() = default;

AxString const& AxZedObjectParameterFactoryEntry::typeToCreate() const
{
    return myTypeToCreate;
}

void AxZedObjectParameterFactoryEntry::setTypeToCreate(AxString const& type)
{
    myTypeToCreate = type;
}

AxZedObjectParameters::CreatorFcn AxZedObjectParameterFactoryEntry::creatorFcn() const
{
    return myCreatorFcn;
}

void AxZedObjectParameterFactoryEntry::setCreatorFcn(AxZedObjectParameters::CreatorFcn creator)
{
    myCreatorFcn = creator;
}

AxZedObjectParameterFactoryEntry*
AxZedObjectParameterFactoryEntry::clone(AxZedObjectParameterFactoryEntry const& other) const
{
    return new AxZedObjectParameterFactoryEntry(other);
}
