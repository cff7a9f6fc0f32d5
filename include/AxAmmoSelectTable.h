#pragma once

#include "AxAmmoSelectEntry.h"

/// Which munitions to use against which target, in file order. The last fitting pattern answers, an exact type before
/// every pattern.
class ZEDOBJPARAM_API AxAmmoSelectTable : public AxRwTemplatedListPtr<AxAmmoSelectEntry, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    AxAmmoSelectTable(AxAmmoSelectTable const& other);
    ~AxAmmoSelectTable() override;

    AxAmmoSelectTable& operator=(AxAmmoSelectTable const& other);
    void copyList(AxAmmoSelectTable const& other);

    /// The munitions for `target`; the type that matched goes to `matched` unless that is null. A miss answers an empty
    /// list that lives with the table, and says so on the verbose stream.
    AxSimMunitionList const& simMunitionList(AxEntityType const& target, AxEntityType* matched = nullptr) const;

    /// Adds a copy and answers it; null when there is no memory for it.
    AxAmmoSelectEntry* addAmmoSelectEntry(AxAmmoSelectEntry const& entry);
    /// Takes ownership.
    AxAmmoSelectEntry* addAmmoSelectEntry(AxAmmoSelectEntry* entry);

    using AxRwTemplatedListPtr::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;

    /// What the elements are called in text.
    static AxSymbolString elementWord();

protected:
    /// Null when no entry is for that type.
    AxListItem* lookupAmmoSelectEntry(AxEntityType const& target) const;

private:
    AxSimMunitionList myEmptyList;
};
