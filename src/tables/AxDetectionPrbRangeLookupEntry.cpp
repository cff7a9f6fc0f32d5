#include "AxDetectionPrbRangeLookupEntry.h"

#include "axTryNew.h"

AxDetectionPrbRangeLookupEntry::AxDetectionPrbRangeLookupEntry()
    : AxDetectionPrbRangeLookupEntry(elementWord(), nullptr)
{
}

AxDetectionPrbRangeLookupEntry::AxDetectionPrbRangeLookupEntry(AxSymbolString name,
                                                               AxDetectionPrbRangeLookupEntry const& other,
                                                               AxReaderWriterRegistry* registry)
    : AxDetectionPrbRangeLookupEntry(name, registry)
{
    assign(other);
}

AxDetectionPrbRangeLookupEntry::AxDetectionPrbRangeLookupEntry(AxDetectionPrbRangeLookupEntry const& other,
                                                               AxReaderWriterRegistry* registry)
    : AxDetectionPrbRangeLookupEntry(other.AxReaderWriter::name(), other, registry)
{
}

AxDetectionPrbRangeLookupEntry::~AxDetectionPrbRangeLookupEntry() = default;

AxDetectionPrbRangeLookupEntry& AxDetectionPrbRangeLookupEntry::operator=(AxDetectionPrbRangeLookupEntry const& other)
{
    assign(other);
    return *this;
}

AxDetectionPrbRangeLookupEntry* AxDetectionPrbRangeLookupEntry::clone(AxReaderWriterRegistry* registry) const
{
    return axTryNew<AxDetectionPrbRangeLookupEntry>(*this, registry);
}
