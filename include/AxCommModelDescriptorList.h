#pragma once

#include "AxCommModelDescriptor.h"
#include "AxDescriptorListTemplate.h"

/// Communication models, owned, keyed by their names; a repeated name replaces. Empty: every message arrives.
class ZEDOBJPARAM_API AxCommModelDescriptorList : public AxDescriptorListTemplate<AxCommModelDescriptor>
{
public:
    using AxDescriptorListTemplate::AxDescriptorListTemplate;
    AxCommModelDescriptorList() = default;
    AxCommModelDescriptorList(AxCommModelDescriptorList const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxCommModelDescriptorList() override;
    AxCommModelDescriptorList& operator=(AxCommModelDescriptorList const& other) = default;

    // ---- The order of the virtual operations is part of the interface. ----
    virtual AxCommModelDescriptorList* clone(AxReaderWriterRegistry* registry) const;
    /// Deletes the elements and clears the value-specified flag.
    virtual void emptyList();
    /// Adds copies of the other's elements.
    virtual void copyList(AxCommModelDescriptorList const& other);

protected:
    /// Takes ownership.
    virtual void addCommModelDescriptor(AxCommModelDescriptor* descriptor);

public:
    /// Adds a copy and answers it.
    virtual AxCommModelDescriptor* addCommModelDescriptor(AxCommModelDescriptor const& descriptor);
    virtual AxCommModelDescriptor* lookupCommModelDescriptor(AxString const& name) const;

protected:
    virtual AxListItem* lookupCommModelDescriptorItem(AxString const& name) const;
    // ---- End of the virtual operations. ----

public:
    using AxRwList::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;
};
