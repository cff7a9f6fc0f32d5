#pragma once

#include "AxDmgAngleOfIncidenceTable.h"
#include "AxPrbCoefficientsRangeDeterminant.h"

/// Damage at one angle of incidence by polynomials in range.
class ZEDOBJPARAM_API AxDmgAngleOfIncidenceRangeCalcTable
    : public AxRecordOf<AxDmgAngleOfIncidenceRangeCalcTable, "AxDmgAngleOfIncidenceRangeCalcTable",
                        AxDmgAngleOfIncidenceTable>
{
public:
    using AxRecordOf::AxRecordOf;
    AxDmgAngleOfIncidenceRangeCalcTable();
    AxDmgAngleOfIncidenceRangeCalcTable(AxDmgAngleOfIncidenceRangeCalcTable const& other,
                                        AxReaderWriterRegistry* registry = nullptr);
    ~AxDmgAngleOfIncidenceRangeCalcTable() override;
    AxDmgAngleOfIncidenceRangeCalcTable& operator=(AxDmgAngleOfIncidenceRangeCalcTable const& other);

    AxPrbCoefficientsRangeDeterminant const& determinant() const override { return myDeterminant; }
    AxPrbCoefficientsRangeDeterminant& determinant() override { return myDeterminant; }
    AxDmgAngleOfIncidenceRangeCalcTable* clone(AxReaderWriterRegistry* registry) const override;
    void addProbabilityCoefficients(AxPrbProbabilityCoefficients const& coefficients)
    {
        myDeterminant.addProbabilityCoefficients(coefficients);
    }

private:
    AxPrbCoefficientsRangeDeterminant myDeterminant{{"range-determinant", "", "Answers the probabilities for a range."},
                                                    registry()};
};
