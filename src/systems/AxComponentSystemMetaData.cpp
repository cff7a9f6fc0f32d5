#include "AxComponentSystemMetaData.h"

AxComponentSystemMetaData::AxComponentSystemMetaData(AxSymbolString name, AxComponentSystemMetaData const& other,
                                                     AxReaderWriterRegistry* registry)
    : AxComponentSystemMetaData(name, registry)
{
    assign(other);
}

AxComponentSystemMetaData::AxComponentSystemMetaData(AxComponentSystemMetaData const& other,
                                                     AxReaderWriterRegistry* registry)
    : AxComponentSystemMetaData(other.AxReaderWriter::name(), other, registry)
{
}

AxComponentSystemMetaData::~AxComponentSystemMetaData() = default;

AxComponentSystemMetaData& AxComponentSystemMetaData::operator=(AxComponentSystemMetaData const& other)
{
    assign(other);
    return *this;
}

void AxComponentSystemMetaData::setSystemName(AxString const& name)
{
    assignSpecified(mySystemName, name);
}

void AxComponentSystemMetaData::setSystemDescription(AxString const& description)
{
    assignSpecified(mySystemDescription, description);
}

std::map<AxString, AxString> AxComponentSystemMetaData::attributeList() const
{
    return mySystemAttributes.attributes();
}

bool AxComponentSystemMetaData::allowedForStateRepositoryType(AxString const& type) const
{
    return myAllowedStateRepositoryTypes.contains(type) || myAllowedStateRepositoryTypes.contains("all");
}

bool AxComponentSystemMetaData::inSystemCategory(AxString const& category) const
{
    return mySystemCategories.contains(category);
}

AxSystemMetaDataEntry* AxComponentSystemMetaData::lookupMetaDataEntry(AxString const& entryType) const
{
    for (AxSystemMetaDataEntry* entry : myMetaDataEntryList)
    {
        if (entry->entryType() == entryType)
        {
            return entry;
        }
    }
    return nullptr;
}
