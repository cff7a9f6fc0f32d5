#include "AxDmgAngleOfIncidenceTable.h"

AxDmgAngleOfIncidenceTable::~AxDmgAngleOfIncidenceTable() = default;

AxDmgAngleOfIncidenceTable& AxDmgAngleOfIncidenceTable::operator=(AxDmgAngleOfIncidenceTable const& other)
{
    assign(other);
    return *this;
}

AxSymbolString AxDmgAngleOfIncidenceTable::elementWord()
{
    static AxSymbolString const word("angle-of-incidence");
    return word;
}
