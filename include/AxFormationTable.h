#pragma once

#include "AxFormationTableEntry.h"

/// The formations of a unit, owned, in file order.
class ZEDOBJPARAM_API AxFormationTable : public AxRwTemplatedListPtr<AxFormationTableEntry, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    AxFormationTable(AxSymbolString name, AxFormationTable const& other, AxReaderWriterRegistry* registry);
    AxFormationTable(AxFormationTable const& other);
    ~AxFormationTable() override;
    AxFormationTable& operator=(AxFormationTable const& other);

    /// The first entry of that formation type, null when there is none.
    AxFormationTableEntry* lookup(AxString const& formationType) const;
    /// The entry that "default-formation" names, else the first one; null for an empty table.
    AxFormationTableEntry* defaultFormation() const;
    void setDefaultFormation(AxString const& formationType) { assignSpecified(myDefaultFormation, formationType); }
    /// The formation type of that entry, empty for an empty table.
    AxString const& defaultFormationType() const;

    char const* readerWriterType() const override;
    char const* xmlType() const override;

private:
    AxRwString myDefaultFormation{
        {"default-formation", "", "Formation to use when a name is unknown; empty: the first."}, registry()};
};
