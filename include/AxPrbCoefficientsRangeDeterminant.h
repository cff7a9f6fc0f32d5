#pragma once

#include "AxPrbCoefficientList.h"
#include "AxPrbRangeDeterminant.h"
#include "AxRecordOf.h"

/// Determines by polynomials.
class ZEDOBJPARAM_API AxPrbCoefficientsRangeDeterminant
    : public AxRecordOf<AxPrbCoefficientsRangeDeterminant, "AxPrbCoefficientsRangeDeterminant", AxPrbRangeDeterminant>
{
public:
    AxPrbCoefficientsRangeDeterminant(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxPrbCoefficientsRangeDeterminant(AxKeyword const& keyword, AxReaderWriterRegistry* registry);
    AxPrbCoefficientsRangeDeterminant(AxSymbolString name, AxPrbCoefficientsRangeDeterminant const& other,
                                      AxReaderWriterRegistry* registry);
    AxPrbCoefficientsRangeDeterminant(AxPrbCoefficientsRangeDeterminant const& other);
    ~AxPrbCoefficientsRangeDeterminant() override;
    AxPrbCoefficientsRangeDeterminant& operator=(AxPrbCoefficientsRangeDeterminant const& other);

    AxPrbCoefficientList const& coefficientList() const { return myCoefficientList; }
    AxPrbCoefficientList& coefficientList() { return myCoefficientList; }
    void addProbabilityCoefficients(AxPrbProbabilityCoefficients const& coefficients)
    {
        myCoefficientList.add(coefficients);
    }

    bool getProbabilities(double range, AxPrbRangeTableEntry* out) const override;
    double getMaximumDamageRadius() const override;

private:
    AxPrbCoefficientList myCoefficientList{
        {"coefficients", "m", "Polynomials in range, the highest power first, one for each outcome."}, registry()};
};
