#include "AxRwNavigationParameters.h"

AxRwNavigationParameters::AxRwNavigationParameters(AxRwNavigationParameters const& other,
                                                   AxReaderWriterRegistry* registry)
    : AxRecordOf(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxRwNavigationParameters::~AxRwNavigationParameters() = default;

AxRwNavigationParameters& AxRwNavigationParameters::operator=(AxRwNavigationParameters const& other)
{
    assign(other);
    return *this;
}
