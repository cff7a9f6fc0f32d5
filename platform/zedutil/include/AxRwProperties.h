#pragma once

#include "AxRwProperty.h"
#include "AxRwTemplatedListPtr.h"

/// Free-form named, typed values; a repeated name replaces the earlier property and moves to the end.
class ZEDOBJPARAM_API AxRwProperties : public AxRwTemplatedListPtr<AxRwProperty, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    AxRwProperties(AxRwProperties const&) = default;
    ~AxRwProperties() override;
    AxRwProperties& operator=(AxRwProperties const&) = default;

    AxRwProperty* find(AxString const& name) const { return lookup(name); }
    using AxRwTemplatedListPtr::add;
    /// A new property of the named type; null when the type is unknown.
    AxRwProperty* add(AxString const& name, AxString const& type);
    using AxRwTemplatedListPtr::remove;
    bool remove(AxString const& name);
    /// Adds or replaces a property with a copy of `value`; null when its type is unknown to the factory.
    AxRwProperty* set(AxString const& name, AxReaderWriter const& value);

    using AxRwTemplatedListPtr::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;
    char const* xmlType() const override;
};
