#include "AxTaskGroup.h"

AxTaskGroup::AxTaskGroup(AxString const& name, AxTaskGroup const& other, AxReaderWriterRegistry* registry)
    : AxRecordOf(name, registry)
{
    assign(other);
}

AxTaskGroup::AxTaskGroup(AxTaskGroup const& other) : AxTaskGroup(other.AxReaderWriter::name().string(), other, nullptr)
{
}

AxTaskGroup::~AxTaskGroup() = default;

AxTaskGroup& AxTaskGroup::operator=(AxTaskGroup const& other)
{
    assign(other);
    return *this;
}
