#include "AxRwMimeCharacterInfo.h"

AxRwMimeCharacterInfo::AxRwMimeCharacterInfo(AxRwMimeCharacterInfo const& other, AxReaderWriterRegistry* registry)
    : AxRecordOf(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxRwMimeCharacterInfo::~AxRwMimeCharacterInfo() = default;

AxRwMimeCharacterInfo& AxRwMimeCharacterInfo::operator=(AxRwMimeCharacterInfo const& other)
{
    assign(other);
    return *this;
}
