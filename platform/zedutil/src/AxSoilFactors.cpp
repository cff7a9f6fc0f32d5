#include "AxSoilFactors.h"

#include "AxSoilList.h"

AxSoilFactors::AxSoilFactors() : AxRecordOf(elementWord(), nullptr) {}

AxSoilFactors::AxSoilFactors(AxSoilFactors const& other, AxReaderWriterRegistry* registry)
    : AxRecordOf(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxSoilFactors::~AxSoilFactors() = default;

AxSoilFactors& AxSoilFactors::operator=(AxSoilFactors const& other)
{
    assign(other);
    return *this;
}

AxSymbolString AxSoilFactors::elementWord()
{
    static AxSymbolString const word("soil-factors");
    return word;
}

AxSoilList::~AxSoilList() = default;

AxSoilFactors* AxSoilList::lookupSoil(AxString const& soilType) const
{
    for (AxSoilFactors* factors : *this)
    {
        if (factors->soilType() == soilType)
        {
            return factors;
        }
    }
    return nullptr;
}

AxSoilFactors const& AxSoilList::factors(AxString const& soilType) const
{
    static AxSoilFactors const neutral;
    if (AxSoilFactors const* const own = lookupSoil(soilType))
    {
        return *own;
    }
    AxSoilFactors const* const standard = lookupSoil("default");
    return standard ? *standard : neutral;
}

char const* AxSoilList::readerWriterType() const
{
    return "AxSoilList";
}
