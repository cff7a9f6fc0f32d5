#include "AxRangeProbEntry.h"

AxRangeProbEntry::~AxRangeProbEntry() = default;

AxRangeProbEntry& AxRangeProbEntry::operator=(AxRangeProbEntry const& other)
{
    assign(other);
    return *this;
}

void AxRangeProbEntry::setEntityType(AxEntityType const& type)
{
    assignSpecified(myEntityType, type);
}

AxSymbolString AxRangeProbEntry::elementWord()
{
    static AxSymbolString const word("entity-range");
    return word;
}
