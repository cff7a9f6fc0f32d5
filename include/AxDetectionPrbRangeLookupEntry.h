#pragma once

#include "AxPrbTableRangeDeterminant.h"
#include "AxRangeProbEntry.h"

/// An element of a range probability table with a step table.
class ZEDOBJPARAM_API AxDetectionPrbRangeLookupEntry
    : public AxRecordOf<AxDetectionPrbRangeLookupEntry, "AxDetectionPrbRangeLookupEntry", AxRangeProbEntry>
{
public:
    using AxRecordOf::AxRecordOf;
    AxDetectionPrbRangeLookupEntry();
    AxDetectionPrbRangeLookupEntry(AxSymbolString name, AxDetectionPrbRangeLookupEntry const& other,
                                   AxReaderWriterRegistry* registry);
    AxDetectionPrbRangeLookupEntry(AxDetectionPrbRangeLookupEntry const& other,
                                   AxReaderWriterRegistry* registry = nullptr);
    ~AxDetectionPrbRangeLookupEntry() override;
    AxDetectionPrbRangeLookupEntry& operator=(AxDetectionPrbRangeLookupEntry const& other);

    AxPrbTableRangeDeterminant const& determinant() const override { return myDeterminant; }
    AxPrbTableRangeDeterminant& determinant() override { return myDeterminant; }
    AxDetectionPrbRangeLookupEntry* clone(AxReaderWriterRegistry* registry) const override;
    void addTableEntry(AxPrbRangeTableEntry const& row) { myDeterminant.addTableEntry(row); }

private:
    AxPrbTableRangeDeterminant myDeterminant{{"range-determinant", "", "Answers the probabilities for a range."},
                                             registry()};
};
