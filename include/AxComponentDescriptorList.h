#pragma once

#include "AxComponentDescriptor.h"
#include "AxDescriptorListTemplate.h"

/// Component descriptors of any class, owned, keyed by their names; a descriptor of a name that is present replaces
/// the earlier one and stands last. Elements whose type no factory knows are kept for writing.
class ZEDOBJPARAM_API AxComponentDescriptorList : public AxDescriptorListTemplate<AxComponentDescriptor>
{
public:
    using AxDescriptorListTemplate::AxDescriptorListTemplate;
    AxComponentDescriptorList() = default;
    AxComponentDescriptorList(AxComponentDescriptorList const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxComponentDescriptorList() override;
    AxComponentDescriptorList& operator=(AxComponentDescriptorList const& other) = default;

    // ---- The order of the virtual operations is part of the interface. ----
    virtual AxComponentDescriptorList* clone(AxReaderWriterRegistry* registry) const;
    /// Deletes the elements and clears the value-specified flag.
    virtual void emptyList();
    /// Adds copies of the other's elements.
    virtual void copyList(AxComponentDescriptorList const& other);

protected:
    /// Takes ownership.
    virtual void addComponentDescriptor(AxComponentDescriptor* descriptor);

public:
    /// Adds a copy and answers it.
    virtual AxComponentDescriptor* addComponentDescriptor(AxComponentDescriptor const& descriptor);
    virtual AxComponentDescriptor* lookupComponentDescriptor(AxString const& name) const;

protected:
    virtual AxListItem* lookupComponentDescriptorItem(AxString const& name) const;
    // ---- End of the virtual operations. ----

public:
    using AxRwList::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;
    char const* xmlType() const override;

private:
    struct Entry;
    static Entry const ourEntry;
};
