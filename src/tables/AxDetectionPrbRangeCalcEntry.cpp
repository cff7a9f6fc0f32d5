#include "AxDetectionPrbRangeCalcEntry.h"

#include "axTryNew.h"

AxDetectionPrbRangeCalcEntry::AxDetectionPrbRangeCalcEntry() : AxDetectionPrbRangeCalcEntry(elementWord(), nullptr) {}

AxDetectionPrbRangeCalcEntry::AxDetectionPrbRangeCalcEntry(AxSymbolString name,
                                                           AxDetectionPrbRangeCalcEntry const& other,
                                                           AxReaderWriterRegistry* registry)
    : AxDetectionPrbRangeCalcEntry(name, registry)
{
    assign(other);
}

AxDetectionPrbRangeCalcEntry::AxDetectionPrbRangeCalcEntry(AxDetectionPrbRangeCalcEntry const& other,
                                                           AxReaderWriterRegistry* registry)
    : AxDetectionPrbRangeCalcEntry(other.AxReaderWriter::name(), other, registry)
{
}

AxDetectionPrbRangeCalcEntry::~AxDetectionPrbRangeCalcEntry() = default;

AxDetectionPrbRangeCalcEntry& AxDetectionPrbRangeCalcEntry::operator=(AxDetectionPrbRangeCalcEntry const& other)
{
    assign(other);
    return *this;
}

AxDetectionPrbRangeCalcEntry* AxDetectionPrbRangeCalcEntry::clone(AxReaderWriterRegistry* registry) const
{
    return axTryNew<AxDetectionPrbRangeCalcEntry>(*this, registry);
}
