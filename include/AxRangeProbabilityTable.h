#pragma once

#include "AxRangeProbEntry.h"
#include "AxRwList.h"

/// Probabilities by object type and range, in file order: a detection or hit table.
///
/// For a type asked, an element of exactly that type answers; otherwise the last whose type is a pattern that the asked
/// one fits, so general patterns are written first.
class ZEDOBJPARAM_API AxRangeProbabilityTable : public AxRwList
{
public:
    AxRangeProbabilityTable() = default;
    using AxRwList::AxRwList;
    AxRangeProbabilityTable(AxRangeProbabilityTable const& other);
    ~AxRangeProbabilityTable() override;

    AxRangeProbabilityTable& operator=(AxRangeProbabilityTable const& other);
    void copyList(AxRangeProbabilityTable const& other);

    /// True when an element answers, also where its determinant knows nothing at that range. Then `matched` takes the
    /// element's type and `out` its probabilities; on a miss both stay as they are. Either may be null.
    bool getProbabilities(AxEntityType const& type, double range, AxPrbRangeTableEntry* out,
                          AxEntityType* matched = nullptr) const;

    /// Adds a copy and answers it; null when there is no memory for it.
    AxRangeProbEntry* addDetectionProbabilityEntry(AxRangeProbEntry const& entry);

    using AxRwList::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;

protected:
    /// Takes ownership.
    AxRangeProbEntry* addDetectionProbabilityEntry(AxRangeProbEntry* entry);
    /// Null when no element is for that type.
    AxListItem* lookupDetectProbEntry(AxEntityType const& type) const;
};
