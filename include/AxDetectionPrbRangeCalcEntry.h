#pragma once

#include "AxPrbCoefficientsRangeDeterminant.h"
#include "AxRangeProbEntry.h"

/// An element of a range probability table with polynomials.
class ZEDOBJPARAM_API AxDetectionPrbRangeCalcEntry
    : public AxRecordOf<AxDetectionPrbRangeCalcEntry, "AxDetectionPrbRangeCalcEntry", AxRangeProbEntry>
{
public:
    using AxRecordOf::AxRecordOf;
    AxDetectionPrbRangeCalcEntry();
    AxDetectionPrbRangeCalcEntry(AxSymbolString name, AxDetectionPrbRangeCalcEntry const& other,
                                 AxReaderWriterRegistry* registry);
    AxDetectionPrbRangeCalcEntry(AxDetectionPrbRangeCalcEntry const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxDetectionPrbRangeCalcEntry() override;
    AxDetectionPrbRangeCalcEntry& operator=(AxDetectionPrbRangeCalcEntry const& other);

    AxPrbCoefficientsRangeDeterminant const& determinant() const override { return myDeterminant; }
    AxPrbCoefficientsRangeDeterminant& determinant() override { return myDeterminant; }
    AxDetectionPrbRangeCalcEntry* clone(AxReaderWriterRegistry* registry) const override;
    void addProbabilityCoefficients(AxPrbProbabilityCoefficients const& coefficients)
    {
        myDeterminant.addProbabilityCoefficients(coefficients);
    }

private:
    AxPrbCoefficientsRangeDeterminant myDeterminant{{"range-determinant", "", "Answers the probabilities for a range."},
                                                    registry()};
};
