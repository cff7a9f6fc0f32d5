#include "AxZedObjectSubComponentTypes.h"

AxZedObjectSubComponentTypes::AxZedObjectSubComponentTypes() : AxRecordOf(AxSymbolString(), nullptr) {}

AxZedObjectSubComponentTypes::AxZedObjectSubComponentTypes(AxString const& name,
                                                           AxZedObjectSubComponentTypes const& other,
                                                           AxReaderWriterRegistry* registry)
    : AxRecordOf(name, registry)
{
    assign(other);
}

AxZedObjectSubComponentTypes::AxZedObjectSubComponentTypes(AxZedObjectSubComponentTypes const& other)
    : AxZedObjectSubComponentTypes(other.AxReaderWriter::name().string(), other, nullptr)
{
}

AxZedObjectSubComponentTypes::~AxZedObjectSubComponentTypes() = default;

AxZedObjectSubComponentTypes& AxZedObjectSubComponentTypes::operator=(AxZedObjectSubComponentTypes const& other)
{
    assign(other);
    return *this;
}
