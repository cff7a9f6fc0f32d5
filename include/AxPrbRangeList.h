#pragma once

#include "AxPrbRangeTableEntry.h"

/// A step table: rows in strictly ascending order of range. A row holds from just above the range of the row before it
/// up to and including its own; nothing is interpolated.
class ZEDOBJPARAM_API AxPrbRangeList : public AxRwList
{
public:
    AxPrbRangeList() = default;
    using AxRwList::AxRwList;
    AxPrbRangeList(AxPrbRangeList const& other);
    ~AxPrbRangeList() override;

    AxPrbRangeList& operator=(AxPrbRangeList const& other);
    void copyList(AxPrbRangeList const& other);

    /// Fills `out`, which may be null, with the first row whose range is not below `range`. Beyond the last row: its
    /// outcomes at 0.0, and false. An empty list empties `out` and answers false.
    bool getProbabilities(double range, AxPrbRangeTableEntry* out) const;
    /// The range of the first row, 0.0 when there is none.
    double minRangeValue() const;
    /// The range of the last row, 0.0 when there is none.
    double maxRangeValue() const;

    void addTableEntry(AxPrbRangeTableEntry const& row);
    /// Takes ownership. A row of the same range is deleted and replaced; a row whose range is no number is refused.
    void addTableEntry(AxPrbRangeTableEntry* row);

    using AxRwList::getData;
    using AxRwList::getSelf;
    void getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings) override;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;

    static AxPrbRangeTableEntry* row(AxListItem const* item)
    {
        return static_cast<AxPrbRangeTableEntry*>(element(item));
    }
};
