#include "AxDetectObjectTypesMetaDataEntry.h"

AxDetectObjectTypesMetaDataEntry::AxDetectObjectTypesMetaDataEntry(AxSymbolString name,
                                                                   AxReaderWriterRegistry* registry)
    : AxSystemMetaDataEntryOf(name, registry)
{
    myPortName.setValueSpecified(true, false);
}

AxDetectObjectTypesMetaDataEntry::AxDetectObjectTypesMetaDataEntry(AxSymbolString name,
                                                                   AxDetectObjectTypesMetaDataEntry const& other,
                                                                   AxReaderWriterRegistry* registry)
    : AxDetectObjectTypesMetaDataEntry(name, registry)
{
    assign(other);
}

AxDetectObjectTypesMetaDataEntry::AxDetectObjectTypesMetaDataEntry(AxDetectObjectTypesMetaDataEntry const& other)
    : AxDetectObjectTypesMetaDataEntry(other.AxReaderWriter::name(), other, nullptr)
{
}

AxDetectObjectTypesMetaDataEntry::~AxDetectObjectTypesMetaDataEntry() = default;

AxDetectObjectTypesMetaDataEntry&
AxDetectObjectTypesMetaDataEntry::operator=(AxDetectObjectTypesMetaDataEntry const& other)
{
    assign(other);
    return *this;
}

void AxDetectObjectTypesMetaDataEntry::setDetectObjectTypesInputPortName(AxString const& name)
{
    assignSpecified(myPortName, name);
}

bool AxDetectObjectTypesMetaDataEntry::compare(AxSystemMetaDataEntry const& other) const
{
    auto const& same = static_cast<AxDetectObjectTypesMetaDataEntry const&>(other);
    return myPortName == same.myPortName;
}
