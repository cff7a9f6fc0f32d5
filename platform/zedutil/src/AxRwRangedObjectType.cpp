#include "AxRwRangedObjectType.h"

AxRwRangedObjectType::AxRwRangedObjectType(AxRwRangedObjectType const& other, AxReaderWriterRegistry* registry)
    : AxRecordOf(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxRwRangedObjectType::~AxRwRangedObjectType() = default;

AxRwRangedObjectType& AxRwRangedObjectType::operator=(AxRwRangedObjectType const& other)
{
    assign(other);
    return *this;
}
