#include "AxSimResource.h"

#include "AxIntegerResource.h"
#include "AxMunitionResource.h"
#include "AxRealResource.h"

AxSimResource::~AxSimResource() = default;

AxIntegerResource::AxIntegerResource(AxIntegerResource const& other, AxReaderWriterRegistry* registry)
    : AxRecordOf(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxIntegerResource& AxIntegerResource::operator=(AxIntegerResource const& other)
{
    assign(other);
    return *this;
}

AxIntegerResource::~AxIntegerResource() = default;

AxRealResource::AxRealResource(AxRealResource const& other, AxReaderWriterRegistry* registry)
    : AxRecordOf(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxRealResource& AxRealResource::operator=(AxRealResource const& other)
{
    assign(other);
    return *this;
}

AxRealResource::~AxRealResource() = default;

AxMunitionResource::AxMunitionResource(AxMunitionResource const& other, AxReaderWriterRegistry* registry)
    : AxRecordOf(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxMunitionResource& AxMunitionResource::operator=(AxMunitionResource const& other)
{
    assign(other);
    return *this;
}

AxMunitionResource::~AxMunitionResource() = default;
