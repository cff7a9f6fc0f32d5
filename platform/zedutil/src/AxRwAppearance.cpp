#include "AxRwAppearance.h"

#include "AxReaderWriterFactory.h"

static AxTypeEntry<AxRwAppearance> const appearanceEntry;

AxRwAppearance::~AxRwAppearance() = default;

char const* AxRwAppearance::readerWriterType() const
{
    return "AxRwAppearance";
}

char const* AxRwAppearance::xmlType() const
{
    return "AxRwAppearance";
}
