#include "AxPrbCoefficientsRangeDeterminant.h"

AxPrbCoefficientsRangeDeterminant::AxPrbCoefficientsRangeDeterminant(AxSymbolString name,
                                                                     AxReaderWriterRegistry* registry)
    : AxRecordOf(name, registry)
{
    // Its keyword tells the kind of determinant, so it is written even when empty.
    myCoefficientList.setValueSpecified(true, true);
}

AxPrbCoefficientsRangeDeterminant::AxPrbCoefficientsRangeDeterminant(AxKeyword const& keyword,
                                                                     AxReaderWriterRegistry* registry)
    : AxRecordOf(keyword, registry)
{
    myCoefficientList.setValueSpecified(true, true);
}

AxPrbCoefficientsRangeDeterminant::AxPrbCoefficientsRangeDeterminant(AxSymbolString name,
                                                                     AxPrbCoefficientsRangeDeterminant const& other,
                                                                     AxReaderWriterRegistry* registry)
    : AxPrbCoefficientsRangeDeterminant(name, registry)
{
    assign(other);
}

AxPrbCoefficientsRangeDeterminant::AxPrbCoefficientsRangeDeterminant(AxPrbCoefficientsRangeDeterminant const& other)
    : AxPrbCoefficientsRangeDeterminant(other.AxReaderWriter::name(), other, nullptr)
{
}

AxPrbCoefficientsRangeDeterminant::~AxPrbCoefficientsRangeDeterminant() = default;

AxPrbCoefficientsRangeDeterminant&
AxPrbCoefficientsRangeDeterminant::operator=(AxPrbCoefficientsRangeDeterminant const& other)
{
    assign(other);
    return *this;
}

bool AxPrbCoefficientsRangeDeterminant::getProbabilities(double range, AxPrbRangeTableEntry* out) const
{
    return myCoefficientList.getProbabilities(range, out);
}

double AxPrbCoefficientsRangeDeterminant::getMaximumDamageRadius() const
{
    return myCoefficientList.maxRangeValue();
}
