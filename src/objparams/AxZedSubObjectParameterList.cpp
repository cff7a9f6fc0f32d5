#include "AxZedSubObjectParameterList.h"

AxZedSubObjectParameterList::~AxZedSubObjectParameterList() = default;

char const* AxZedSubObjectParameterList::readerWriterType() const
{
    return "AxZedSubObjectParameterList";
}

char const* AxZedSubObjectParameterList::xmlType() const
{
    return "AxZedSubObjectParameterList";
}
