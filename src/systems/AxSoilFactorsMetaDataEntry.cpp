#include "AxSoilFactorsMetaDataEntry.h"

AxSoilFactorsMetaDataEntry::AxSoilFactorsMetaDataEntry(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxSystemMetaDataEntryOf(name, registry)
{
}

AxSoilFactorsMetaDataEntry::AxSoilFactorsMetaDataEntry(AxSymbolString name, AxSoilFactorsMetaDataEntry const& other,
                                                       AxReaderWriterRegistry* registry)
    : AxSoilFactorsMetaDataEntry(name, registry)
{
    assign(other);
}

AxSoilFactorsMetaDataEntry::AxSoilFactorsMetaDataEntry(AxSoilFactorsMetaDataEntry const& other)
    : AxSoilFactorsMetaDataEntry(other.AxReaderWriter::name(), other, nullptr)
{
}

AxSoilFactorsMetaDataEntry::~AxSoilFactorsMetaDataEntry() = default;

AxSoilFactorsMetaDataEntry& AxSoilFactorsMetaDataEntry::operator=(AxSoilFactorsMetaDataEntry const& other)
{
    assign(other);
    return *this;
}

bool AxSoilFactorsMetaDataEntry::compare(AxSystemMetaDataEntry const& other) const
{
    auto const& same = static_cast<AxSoilFactorsMetaDataEntry const&>(other);
    return mySoilList == same.mySoilList;
}
