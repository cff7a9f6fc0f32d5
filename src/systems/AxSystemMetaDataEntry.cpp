#include "AxSystemMetaDataEntry.h"

#include "AxDefaultSystemMetaDataEntryFactory.h"
#include "AxReaderWriterFactory.h"

#include <memory>
#include <typeinfo>

static AxTypeEntry<AxSystemMetaDataEntry> const systemMetaDataEntryEntry;

AxSystemMetaDataEntry::AxSystemMetaDataEntry(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry)
{
}

AxSystemMetaDataEntry::~AxSystemMetaDataEntry() = default;

AxSystemMetaDataEntry& AxSystemMetaDataEntry::operator=(AxSystemMetaDataEntry const& other)
{
    assign(other);
    return *this;
}

bool AxSystemMetaDataEntry::equals(AxSystemMetaDataEntry const& other) const
{
    return typeid(*this) == typeid(other) && compare(other);
}

void AxSystemMetaDataEntry::putSelf(std::string& out, int indent, bool all, AxFilename const& file)
{
    writeAs(AxSymbolString(entryType()), out, indent, all, file);
}

AxSystemMetaDataEntry::Factory* AxSystemMetaDataEntry::factory()
{
    static std::unique_ptr<Factory> const theFactory(AxDefaultSystemMetaDataEntryFactory::create());
    return theFactory.get();
}

AxSystemMetaDataEntry* AxSystemMetaDataEntry::createMetaDataEntry(AxString const& type)
{
    return factory()->createItem(type, type);
}
