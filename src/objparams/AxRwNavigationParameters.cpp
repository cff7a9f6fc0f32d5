#include "AxRwNavigationParameters.h"

AxRwNavigationParameters::AxRwNavigationParameters(AxSymbolString name, AxRwNavigationParameters const& other,
                                                   AxReaderWriterRegistry* registry)
    : AxRwNavigationParameters(name, registry)
{
    assign(other);
}

AxRwNavigationParameters::AxRwNavigationParameters(AxRwNavigationParameters const& other,
                                                   AxReaderWriterRegistry* registry)
    : AxRwNavigationParameters(other.AxReaderWriter::name(), other, registry)
{
}

AxRwNavigationParameters::~AxRwNavigationParameters() = default;

AxRwNavigationParameters& AxRwNavigationParameters::operator=(AxRwNavigationParameters const& other)
{
    assign(other);
    return *this;
}
