#include "AxSystemMetaDataEntryList.h"

static AxTypeEntry<AxSystemMetaDataEntryList> const systemMetaDataEntryListEntry;

AxSystemMetaDataEntryList::~AxSystemMetaDataEntryList() = default;

char const* AxSystemMetaDataEntryList::readerWriterType() const
{
    return "AxSystemMetaDataEntryList";
}
