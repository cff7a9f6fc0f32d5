#pragma once

#include "AxSimResource.h"
#include "AxTypedListIterator.h"

/// The supplies of an object or a system, in file order, owned. A resource whose resource name is present already
/// replaces the earlier one and stands last. Elements of an unknown type are reported and kept for writing.
class ZEDOBJPARAM_API AxSimResourceManager : public AxRwList
{
public:
    using AxRwList::AxRwList;
    AxSimResourceManager() = default;
    AxSimResourceManager(AxSimResourceManager const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxSimResourceManager() override;
    AxSimResourceManager& operator=(AxSimResourceManager const& other);

    /// Adds a copy and answers it.
    virtual AxSimResource* addResource(AxSimResource const& resource);
    /// Takes ownership. The resource is named after its class, the word that heads it in text.
    virtual void addResource(AxSimResource* resource);
    /// Null when there is none of that resource name.
    virtual AxSimResource* findResource(AxString const& resourceName) const;
    /// Removes and deletes; false when there is none.
    virtual bool removeResource(AxString const& resourceName);

    AxTypedListIterator<AxSimResource> begin() const { return AxTypedListIterator<AxSimResource>(first()); }
    AxTypedListIterator<AxSimResource> end() const { return AxTypedListIterator<AxSimResource>(nullptr); }

    using AxRwList::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;

private:
    void copyResources(AxSimResourceManager const& other);
};
