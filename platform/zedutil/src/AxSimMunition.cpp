#include "AxSimMunition.h"

AxSimMunition::AxSimMunition() : AxRecordOf("munition", nullptr) {}

AxSimMunition::AxSimMunition(AxSymbolString name, AxSimMunition const& other, AxReaderWriterRegistry* registry)
    : AxSimMunition(name, registry)
{
    assign(other);
}

AxSimMunition::AxSimMunition(AxSimMunition const& other, AxReaderWriterRegistry* registry)
    : AxSimMunition(other.AxReaderWriter::name(), other, registry)
{
}

AxSimMunition::~AxSimMunition() = default;

AxSimMunition& AxSimMunition::operator=(AxSimMunition const& other)
{
    assign(other);
    return *this;
}

static bool fits(AxObjectType const& type, AxObjectType const& pattern)
{
    return pattern.isNull() || type.matchPattern(pattern);
}

static bool fits(AxString const& text, AxString const& pattern)
{
    return pattern.isNull() || text == pattern;
}

bool AxSimMunition::matchPattern(AxSimMunition const& other) const
{
    return fits(other.munitionType(), munitionType()) && fits(other.tracerType(), tracerType()) &&
           (warhead() == -1 || other.warhead() == warhead()) && fits(other.guidanceMode(), guidanceMode()) &&
           fits(other.munitionName(), munitionName());
}
