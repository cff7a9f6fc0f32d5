#pragma once

#include "AxDmgAngleOfIncidenceTable.h"
#include "AxTypedListIterator.h"

/// Damage to one kind of surface, which is the entry's name: tables by angle of incidence, owned, in file order.
///
/// A table answers for angles from just above that of the table before it up to its own; nothing is interpolated, and
/// nothing is sorted, so that a smaller angle behind a greater one is never reached.
class ZEDOBJPARAM_API AxDmgSurfaceEntry : public AxRwList
{
public:
    AxDmgSurfaceEntry() = default;
    using AxRwList::AxRwList;
    AxDmgSurfaceEntry(AxDmgSurfaceEntry const& other);
    ~AxDmgSurfaceEntry() override;

    /// Takes the tables; the name stays.
    AxDmgSurfaceEntry& operator=(AxDmgSurfaceEntry const& other);
    void copyList(AxDmgSurfaceEntry const& other);
    /// Same surface and equal tables in the same order.
    bool equals(AxDmgSurfaceEntry const& other) const;
    bool operator==(AxDmgSurfaceEntry const& other) const { return equals(other); }

    /// Fills `out`, which may be null, from the first table whose angle is not below `angle` (degrees). True when there
    /// is one, also where it knows nothing at that range (metres); otherwise a warning, and `out` stays as it is.
    bool getProbabilities(double angle, double range, AxPrbRangeTableEntry* out) const;
    /// The largest range that any of the tables covers, 0.0 when there is none.
    double getMaximumDamageRadius() const;

    /// Appends a copy and answers it; null, and a warning, when there is no memory for it.
    AxDmgAngleOfIncidenceTable* addAngleOfIncidenceTable(AxDmgAngleOfIncidenceTable const& table);
    /// Takes ownership.
    AxDmgAngleOfIncidenceTable* addAngleOfIncidenceTable(AxDmgAngleOfIncidenceTable* table);

    using Iterator = AxTypedListIterator<AxDmgAngleOfIncidenceTable>;
    Iterator begin() const { return Iterator(first()); }
    Iterator end() const { return Iterator(nullptr); }

    using AxRwList::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;
};
