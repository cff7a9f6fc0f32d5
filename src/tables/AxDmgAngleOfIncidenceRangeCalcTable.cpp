#include "AxDmgAngleOfIncidenceRangeCalcTable.h"

#include "axTryNew.h"

AxDmgAngleOfIncidenceRangeCalcTable::AxDmgAngleOfIncidenceRangeCalcTable()
    : AxDmgAngleOfIncidenceRangeCalcTable(elementWord(), nullptr)
{
}

AxDmgAngleOfIncidenceRangeCalcTable::AxDmgAngleOfIncidenceRangeCalcTable(
    AxDmgAngleOfIncidenceRangeCalcTable const& other, AxReaderWriterRegistry* registry)
    : AxDmgAngleOfIncidenceRangeCalcTable(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxDmgAngleOfIncidenceRangeCalcTable::~AxDmgAngleOfIncidenceRangeCalcTable() = default;

AxDmgAngleOfIncidenceRangeCalcTable&
AxDmgAngleOfIncidenceRangeCalcTable::operator=(AxDmgAngleOfIncidenceRangeCalcTable const& other)
{
    assign(other);
    return *this;
}

AxDmgAngleOfIncidenceRangeCalcTable* AxDmgAngleOfIncidenceRangeCalcTable::clone(AxReaderWriterRegistry* registry) const
{
    return axTryNew<AxDmgAngleOfIncidenceRangeCalcTable>(*this, registry);
}
