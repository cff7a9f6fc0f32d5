#include "AxSystemMetaDataEntryList.h"

static AxTypeEntry<AxSystemMetaDataEntryList> const typeEntry;

AxSystemMetaDataEntryList::~AxSystemMetaDataEntryList() = default;

char const* AxSystemMetaDataEntryList::readerWriterType() const
{
    return "AxSystemMetaDataEntryList";
}
