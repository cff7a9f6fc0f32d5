#pragma once

#include "AxDmgMunitionEntry.h"

/// Damage by munition, owned, in file order. The last fitting pattern answers, an equal munition before every pattern.
///
/// One question is what a munition does to a surface that it meets at an angle (degrees) and a range, the distance by
/// which it misses (metres). A caller that asks often keeps one row: then nothing is allocated.
class ZEDOBJPARAM_API AxDmgMunitionTable : public AxRwTemplatedListPtr<AxDmgMunitionEntry, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    AxDmgMunitionTable(AxDmgMunitionTable const&) = default;
    ~AxDmgMunitionTable() override;
    AxDmgMunitionTable& operator=(AxDmgMunitionTable const&) = default;

    /// True when an angle table answers; then `out` takes its row, emptied or at 0.0 beyond its ranges. `matched` takes
    /// the entry's munition as soon as there is one. On a miss both stay as they are. Either may be null.
    bool getProbabilities(AxSimMunition const& munition, AxString const& surface, double angle, double range,
                          AxPrbRangeTableEntry* out, bool direct, AxSimMunition* matched = nullptr) const;
    /// Null when no entry is for that munition.
    AxDmgMunitionEntry* lookupMunitionEntry(AxSimMunition const& munition) const;
    /// The largest range at which the munition damages, metres; 0.0 when no entry is for it.
    double getMaximumDamageRadius(AxSimMunition const& munition) const;
    /// The largest range at which the munition suppresses, metres; 0.0 when no entry is for it.
    double getMaximumSuppressionRadius(AxSimMunition const& munition) const;

    /// Appends a copy and answers it; null when there is no memory for it.
    AxDmgMunitionEntry* addMunitionEntry(AxDmgMunitionEntry const& entry);
    /// Takes ownership.
    AxDmgMunitionEntry* addMunitionEntry(AxDmgMunitionEntry* entry);
    /// Appends an empty entry for munitions of that type and answers it; null when there is no memory for it.
    AxDmgMunitionEntry* addMunitionEntry(AxObjectType const& type);

    char const* readerWriterType() const override;
    char const* xmlType() const override;
};
