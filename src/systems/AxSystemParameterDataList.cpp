#include "AxSystemParameterDataList.h"

static AxTypeEntry<AxSystemParameterDataList> const systemParameterDataListEntry;

AxSystemParameterDataList::~AxSystemParameterDataList() = default;

char const* AxSystemParameterDataList::readerWriterType() const
{
    return "AxSystemParameterDataList";
}
