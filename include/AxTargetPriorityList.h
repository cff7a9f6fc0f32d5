#pragma once

#include "AxRwTemplatedListPtr.h"
#include "AxTargetPriorityEntry.h"

/// Priorities by object type, in file order. The last fitting pattern answers, an exact type before every pattern.
class ZEDOBJPARAM_API AxTargetPriorityList : public AxRwTemplatedListPtr<AxTargetPriorityEntry, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    AxTargetPriorityList(AxTargetPriorityList const& other);
    ~AxTargetPriorityList() override;

    AxTargetPriorityList& operator=(AxTargetPriorityList const& other);
    void copyList(AxTargetPriorityList const& other);

    /// The priority of `target`; the type that matched goes to `matched` unless that is null. A miss answers -1, leaves
    /// `matched` and says so on the verbose stream.
    int priority(AxEntityType const& target, AxEntityType* matched = nullptr) const;
    /// Null when no entry is for that type.
    AxListItem* lookupTargetPriorityEntry(AxEntityType const& target) const;

    /// Adds a copy and answers it; null when there is no memory for it.
    AxTargetPriorityEntry* addTargetPriorityEntry(AxTargetPriorityEntry const& entry);
    /// Takes ownership.
    AxTargetPriorityEntry* addTargetPriorityEntry(AxTargetPriorityEntry* entry);
    /// Adds an entry for `type` with the default priority and answers it.
    AxTargetPriorityEntry* addTargetPriorityEntry(AxEntityType const& type);

    using AxRwTemplatedListPtr::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;

    /// What the elements are called in text.
    static AxSymbolString elementWord();
};
