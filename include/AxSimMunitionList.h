#pragma once

#include "AxRwTemplatedListPtr.h"
#include "AxSimMunition.h"

/// Munitions in order of preference; a name may stand in it more than once.
class ZEDOBJPARAM_API AxSimMunitionList : public AxRwTemplatedListPtr<AxSimMunition, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    AxSimMunitionList(AxSimMunitionList const&) = default;
    ~AxSimMunitionList() override;
    AxSimMunitionList& operator=(AxSimMunitionList const&) = default;

    /// Adds a copy and answers it.
    AxSimMunition* addSimMunition(AxSimMunition const& munition);
    /// Takes ownership.
    AxSimMunition* addSimMunition(AxSimMunition* munition);
    /// Removes and deletes that very munition; false when it is not in the list.
    bool removeSimMunition(AxSimMunition* munition);
    /// The first whose munition name is `name`, null when there is none.
    AxSimMunition* lookupSimMunition(AxString const& name) const;

    using AxRwTemplatedListPtr::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;

    /// What a munition in a list is called in text.
    static AxSymbolString elementWord();
};
