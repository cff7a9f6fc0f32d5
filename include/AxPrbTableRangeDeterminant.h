#pragma once

#include "AxPrbRangeDeterminant.h"
#include "AxPrbRangeList.h"
#include "AxRecordOf.h"

/// Determines by a step table.
class ZEDOBJPARAM_API AxPrbTableRangeDeterminant
    : public AxRecordOf<AxPrbTableRangeDeterminant, "AxPrbTableRangeDeterminant", AxPrbRangeDeterminant>
{
public:
    AxPrbTableRangeDeterminant(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxPrbTableRangeDeterminant(AxKeyword const& keyword, AxReaderWriterRegistry* registry);
    AxPrbTableRangeDeterminant(AxSymbolString name, AxPrbTableRangeDeterminant const& other,
                               AxReaderWriterRegistry* registry);
    AxPrbTableRangeDeterminant(AxPrbTableRangeDeterminant const& other);
    ~AxPrbTableRangeDeterminant() override;
    AxPrbTableRangeDeterminant& operator=(AxPrbTableRangeDeterminant const& other);

    AxPrbRangeList const& rangeList() const { return myRangeList; }
    AxPrbRangeList& rangeList() { return myRangeList; }
    void addTableEntry(AxPrbRangeTableEntry const& row) { myRangeList.addTableEntry(row); }

    bool getProbabilities(double range, AxPrbRangeTableEntry* out) const override;
    double getMaximumDamageRadius() const override;

private:
    AxPrbRangeList myRangeList{{"range-list", "m", "Rows of probabilities, each up to its range."}, registry()};
};
