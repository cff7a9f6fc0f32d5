#include "AxDetectedObjectsMetaDataEntry.h"

AxDetectedObjectsMetaDataEntry::AxDetectedObjectsMetaDataEntry(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxSystemMetaDataEntryOf(name, registry)
{
    myPortName.setValueSpecified(true, false);
}

AxDetectedObjectsMetaDataEntry::AxDetectedObjectsMetaDataEntry(AxSymbolString name,
                                                               AxDetectedObjectsMetaDataEntry const& other,
                                                               AxReaderWriterRegistry* registry)
    : AxDetectedObjectsMetaDataEntry(name, registry)
{
    assign(other);
}

AxDetectedObjectsMetaDataEntry::AxDetectedObjectsMetaDataEntry(AxDetectedObjectsMetaDataEntry const& other)
    : AxDetectedObjectsMetaDataEntry(other.AxReaderWriter::name(), other, nullptr)
{
}

AxDetectedObjectsMetaDataEntry::~AxDetectedObjectsMetaDataEntry() = default;

AxDetectedObjectsMetaDataEntry& AxDetectedObjectsMetaDataEntry::operator=(AxDetectedObjectsMetaDataEntry const& other)
{
    assign(other);
    return *this;
}

void AxDetectedObjectsMetaDataEntry::setDetectedObjectsOutputPortName(AxString const& name)
{
    assignSpecified(myPortName, name);
}

bool AxDetectedObjectsMetaDataEntry::compare(AxSystemMetaDataEntry const& other) const
{
    auto const& same = static_cast<AxDetectedObjectsMetaDataEntry const&>(other);
    return myPortName == same.myPortName;
}
