#pragma once

#include "AxDmgAngleOfIncidenceTable.h"
#include "AxPrbTableRangeDeterminant.h"

/// Damage at one angle of incidence by a step table.
class ZEDOBJPARAM_API AxDmgAngleOfIncidenceRangeLookupTable
    : public AxRecordOf<AxDmgAngleOfIncidenceRangeLookupTable, "AxDmgAngleOfIncidenceRangeLookupTable",
                        AxDmgAngleOfIncidenceTable>
{
public:
    using AxRecordOf::AxRecordOf;
    AxDmgAngleOfIncidenceRangeLookupTable();
    AxDmgAngleOfIncidenceRangeLookupTable(AxDmgAngleOfIncidenceRangeLookupTable const& other,
                                          AxReaderWriterRegistry* registry = nullptr);
    ~AxDmgAngleOfIncidenceRangeLookupTable() override;
    AxDmgAngleOfIncidenceRangeLookupTable& operator=(AxDmgAngleOfIncidenceRangeLookupTable const& other);

    AxPrbTableRangeDeterminant const& determinant() const override { return myDeterminant; }
    AxPrbTableRangeDeterminant& determinant() override { return myDeterminant; }
    AxDmgAngleOfIncidenceRangeLookupTable* clone(AxReaderWriterRegistry* registry) const override;
    void addTableEntry(AxPrbRangeTableEntry const& row) { myDeterminant.addTableEntry(row); }

private:
    AxPrbTableRangeDeterminant myDeterminant{{"range-determinant", "", "Answers the probabilities for a range."},
                                             registry()};
};
