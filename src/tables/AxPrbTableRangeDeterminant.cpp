#include "AxPrbTableRangeDeterminant.h"

AxPrbTableRangeDeterminant::AxPrbTableRangeDeterminant(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxRecordOf(name, registry)
{
    // Its keyword tells the kind of determinant, so it is written even when empty.
    myRangeList.setValueSpecified(true, true);
}

AxPrbTableRangeDeterminant::AxPrbTableRangeDeterminant(AxKeyword const& keyword, AxReaderWriterRegistry* registry)
    : AxRecordOf(keyword, registry)
{
    myRangeList.setValueSpecified(true, true);
}

AxPrbTableRangeDeterminant::AxPrbTableRangeDeterminant(AxSymbolString name, AxPrbTableRangeDeterminant const& other,
                                                       AxReaderWriterRegistry* registry)
    : AxPrbTableRangeDeterminant(name, registry)
{
    assign(other);
}

AxPrbTableRangeDeterminant::AxPrbTableRangeDeterminant(AxPrbTableRangeDeterminant const& other)
    : AxPrbTableRangeDeterminant(other.AxReaderWriter::name(), other, nullptr)
{
}

AxPrbTableRangeDeterminant::~AxPrbTableRangeDeterminant() = default;

AxPrbTableRangeDeterminant& AxPrbTableRangeDeterminant::operator=(AxPrbTableRangeDeterminant const& other)
{
    assign(other);
    return *this;
}

bool AxPrbTableRangeDeterminant::getProbabilities(double range, AxPrbRangeTableEntry* out) const
{
    return myRangeList.getProbabilities(range, out);
}

double AxPrbTableRangeDeterminant::getMaximumDamageRadius() const
{
    return myRangeList.maxRangeValue();
}
