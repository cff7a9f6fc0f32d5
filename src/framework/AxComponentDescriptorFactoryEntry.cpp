#include "AxComponentDescriptorFactoryEntry.h"

AxComponentDescriptorFactoryEntry::~AxComponentDescriptorFactoryEntry() = default;

AxString const& AxComponentDescriptorFactoryEntry::typeToCreate() const
{
    return myTypeToCreate;
}

void AxComponentDescriptorFactoryEntry::setTypeToCreate(AxString const& type)
{
    myTypeToCreate = type;
}

AxComponentDescriptor::CreatorFcn AxComponentDescriptorFactoryEntry::creatorFcn() const
{
    return myCreatorFcn;
}

void AxComponentDescriptorFactoryEntry::setCreatorFcn(AxComponentDescriptor::CreatorFcn creator)
{
    myCreatorFcn = creator;
}

AxComponentDescriptorFactoryEntry*
AxComponentDescriptorFactoryEntry::clone(AxComponentDescriptorFactoryEntry const& other) const
{
    return new AxComponentDescriptorFactoryEntry(other);
}
