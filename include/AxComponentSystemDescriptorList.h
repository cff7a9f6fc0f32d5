#pragma once

#include "AxComponentSystemDescriptor.h"
#include "AxDescriptorListTemplate.h"

/// The component systems that an object or a system uses, owned, keyed by their names; a descriptor of a name that is
/// present replaces the earlier one and stands last.
class ZEDOBJPARAM_API AxComponentSystemDescriptorList : public AxDescriptorListTemplate<AxComponentSystemDescriptor>
{
public:
    using AxDescriptorListTemplate::AxDescriptorListTemplate;
    AxComponentSystemDescriptorList() = default;
    AxComponentSystemDescriptorList(AxComponentSystemDescriptorList const& other,
                                    AxReaderWriterRegistry* registry = nullptr);
    ~AxComponentSystemDescriptorList() override;
    AxComponentSystemDescriptorList& operator=(AxComponentSystemDescriptorList const& other) = default;

    // ---- The order of the virtual operations is part of the interface. ----
    virtual AxComponentSystemDescriptorList* clone(AxReaderWriterRegistry* registry) const;
    /// Deletes the elements and clears the value-specified flag.
    virtual void emptyList();
    /// Adds copies of the other's elements.
    virtual void copyList(AxComponentSystemDescriptorList const& other);

protected:
    /// Takes ownership.
    virtual void addComponentSystemDescriptor(AxComponentSystemDescriptor* descriptor);

public:
    /// Adds a copy and answers it.
    virtual AxComponentSystemDescriptor* addComponentSystemDescriptor(AxComponentSystemDescriptor const& descriptor);
    virtual AxComponentSystemDescriptor* lookupComponentSystemDescriptor(AxString const& name) const;

protected:
    virtual AxListItem* lookupComponentSystemDescriptorItem(AxString const& name) const;
    // ---- End of the virtual operations. ----

public:
    using AxRwList::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;
};
