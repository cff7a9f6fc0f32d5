#pragma once

#include "AxComponentDescriptor.h"

/// A type name and the function that makes an empty descriptor of that type.
class ZEDOBJPARAM_API AxComponentDescriptorFactoryEntry
{
public:
    AxComponentDescriptorFactoryEntry() = default;
    AxComponentDescriptorFactoryEntry(AxComponentDescriptorFactoryEntry const&) = default;
    AxComponentDescriptorFactoryEntry& operator=(AxComponentDescriptorFactoryEntry const&) = default;

    // ---- The order of the virtual operations is part of the interface. ----
    virtual ~AxComponentDescriptorFactoryEntry();
    virtual AxString const& typeToCreate() const;
    virtual void setTypeToCreate(AxString const& type);
    virtual AxComponentDescriptor::CreatorFcn creatorFcn() const;
    virtual void setCreatorFcn(AxComponentDescriptor::CreatorFcn creator);
    /// A new entry copied from the argument.
    virtual AxComponentDescriptorFactoryEntry* clone(AxComponentDescriptorFactoryEntry const& other) const;

private:
    AxString myTypeToCreate;
    AxComponentDescriptor::CreatorFcn myCreatorFcn = nullptr;
};
