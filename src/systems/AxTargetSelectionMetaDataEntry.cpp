#include "AxTargetSelectionMetaDataEntry.h"

AxTargetSelectionMetaDataEntry::AxTargetSelectionMetaDataEntry(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxSystemMetaDataEntryOf(name, registry)
{
    myTargetSelectionCriteria.setValueSpecified(true, true); // marked alone, so that its empty lists are not written
    myTargetInputPortName.setValueSpecified(true, false);
}

AxTargetSelectionMetaDataEntry::AxTargetSelectionMetaDataEntry(AxSymbolString name,
                                                               AxTargetSelectionMetaDataEntry const& other,
                                                               AxReaderWriterRegistry* registry)
    : AxTargetSelectionMetaDataEntry(name, registry)
{
    assign(other);
}

AxTargetSelectionMetaDataEntry::AxTargetSelectionMetaDataEntry(AxTargetSelectionMetaDataEntry const& other)
    : AxTargetSelectionMetaDataEntry(other.AxReaderWriter::name(), other, nullptr)
{
}

AxTargetSelectionMetaDataEntry::~AxTargetSelectionMetaDataEntry() = default;

AxTargetSelectionMetaDataEntry& AxTargetSelectionMetaDataEntry::operator=(AxTargetSelectionMetaDataEntry const& other)
{
    assign(other);
    return *this;
}

void AxTargetSelectionMetaDataEntry::setTargetInputPortName(AxString const& name)
{
    assignSpecified(myTargetInputPortName, name);
}

bool AxTargetSelectionMetaDataEntry::compare(AxSystemMetaDataEntry const& other) const
{
    auto const& same = static_cast<AxTargetSelectionMetaDataEntry const&>(other);
    return targetInputPortName() == same.targetInputPortName() &&
           myTargetSelectionCriteria == same.myTargetSelectionCriteria;
}
