#pragma once

#include "AxDmgSurfaceEntry.h"
#include "AxRwTemplatedListPtr.h"

#include <cstdint>
#include <string_view>
#include <unordered_map>

/// Damage to the surfaces of a target, by name, owned, in file order: the content of a ".dmg" file.
///
/// Of several entries of one name the last answers; all are kept.
class ZEDOBJPARAM_API AxDmgSurfaceTable : public AxRwTemplatedListPtr<AxDmgSurfaceEntry, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    AxDmgSurfaceTable(AxDmgSurfaceTable const& other);
    ~AxDmgSurfaceTable() override;
    AxDmgSurfaceTable& operator=(AxDmgSurfaceTable const& other);

    /// As the entry of that very name answers; false, and `out` as it is, when there is none.
    bool getProbabilities(AxString const& surface, double angle, double range, AxPrbRangeTableEntry* out) const;
    /// The largest range that any of the entries covers, metres; 0.0 when there is none.
    double getMaximumDamageRadius() const;
    /// The entry that answers for a surface, null when there is none.
    AxDmgSurfaceEntry* lookupSurfaceEntry(AxString const& surface) const;

    /// Appends a copy and answers it; null when there is no memory for it.
    AxDmgSurfaceEntry* addSurfaceEntry(AxDmgSurfaceEntry const& entry);
    /// Takes ownership. An entry keeps its name for as long as it is in the table.
    AxDmgSurfaceEntry* addSurfaceEntry(AxDmgSurfaceEntry* entry);
    /// Deletes the entry; false when it is not of this table. An earlier one of its name answers again.
    bool removeSurfaceEntry(AxDmgSurfaceEntry* entry);

    using AxRwTemplatedListPtr::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;
    char const* xmlType() const override;

private:
    using Index = std::unordered_map<std::string_view, AxDmgSurfaceEntry*>;

    Index& index() const;

    /// The last entry of each name, as it was when the list had changed so many times.
    mutable Index myIndex;
    mutable std::uint32_t myIndexedChanges = 0;
};
