#include "AxSystemParameterDataList.h"

static AxTypeEntry<AxSystemParameterDataList> const typeEntry;

AxSystemParameterDataList::~AxSystemParameterDataList() = default;

char const* AxSystemParameterDataList::readerWriterType() const
{
    return "AxSystemParameterDataList";
}
