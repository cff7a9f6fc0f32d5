#include "AxFormationTableEntry.h"

AxFormationTableEntry::AxFormationTableEntry() : AxFormationTableEntry(elementWord(), nullptr) {}

AxFormationTableEntry::AxFormationTableEntry(AxSymbolString name, AxReaderWriterRegistry* parent)
    : AxRecordOf(name, parent)
{
    myFormationFile.setContent(&myFormation);
}

AxFormationTableEntry::AxFormationTableEntry(AxFormationTableEntry const& other, AxReaderWriterRegistry* registry)
    : AxFormationTableEntry(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxFormationTableEntry::~AxFormationTableEntry() = default;

AxFormationTableEntry& AxFormationTableEntry::operator=(AxFormationTableEntry const& other)
{
    assign(other);
    return *this;
}

void AxFormationTableEntry::setFormationType(AxString const& type)
{
    assignSpecified(myFormationType, type);
    myFormation.setFormationType(type);
}

AxFormation& AxFormationTableEntry::formation()
{
    myFormation.setFormationType(myFormationType.value());
    return myFormation;
}

AxFormation const& AxFormationTableEntry::formation() const
{
    myFormation.setFormationType(myFormationType.value());
    return myFormation;
}

AxSymbolString AxFormationTableEntry::elementWord()
{
    static AxSymbolString const word("formation-entry");
    return word;
}
