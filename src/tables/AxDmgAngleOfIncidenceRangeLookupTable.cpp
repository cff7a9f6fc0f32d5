#include "AxDmgAngleOfIncidenceRangeLookupTable.h"

#include "axTryNew.h"

AxDmgAngleOfIncidenceRangeLookupTable::AxDmgAngleOfIncidenceRangeLookupTable()
    : AxDmgAngleOfIncidenceRangeLookupTable(elementWord(), nullptr)
{
}

AxDmgAngleOfIncidenceRangeLookupTable::AxDmgAngleOfIncidenceRangeLookupTable(
    AxDmgAngleOfIncidenceRangeLookupTable const& other, AxReaderWriterRegistry* registry)
    : AxDmgAngleOfIncidenceRangeLookupTable(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxDmgAngleOfIncidenceRangeLookupTable::~AxDmgAngleOfIncidenceRangeLookupTable() = default;

AxDmgAngleOfIncidenceRangeLookupTable&
AxDmgAngleOfIncidenceRangeLookupTable::operator=(AxDmgAngleOfIncidenceRangeLookupTable const& other)
{
    assign(other);
    return *this;
}

AxDmgAngleOfIncidenceRangeLookupTable*
AxDmgAngleOfIncidenceRangeLookupTable::clone(AxReaderWriterRegistry* registry) const
{
    return axTryNew<AxDmgAngleOfIncidenceRangeLookupTable>(*this, registry);
}
