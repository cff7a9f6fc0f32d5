#include "AxFormationPosition.h"

AxFormationPosition::AxFormationPosition() : AxRecordOf(elementWord(), nullptr) {}

AxFormationPosition::AxFormationPosition(AxFormationPosition const& other, AxReaderWriterRegistry* registry)
    : AxRecordOf(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxFormationPosition::~AxFormationPosition() = default;

AxFormationPosition& AxFormationPosition::operator=(AxFormationPosition const& other)
{
    assign(other);
    return *this;
}

AxSymbolString AxFormationPosition::elementWord()
{
    static AxSymbolString const word("position");
    return word;
}
