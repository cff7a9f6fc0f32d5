#include "AxFormationTable.h"

AxFormationTable::AxFormationTable(AxSymbolString name, AxFormationTable const& other, AxReaderWriterRegistry* registry)
    : AxRwTemplatedListPtr(name, registry)
{
    *this = other;
}

AxFormationTable::AxFormationTable(AxFormationTable const& other)
    : AxFormationTable(other.AxReaderWriter::name(), other, nullptr)
{
}

AxFormationTable::~AxFormationTable() = default;

AxFormationTable& AxFormationTable::operator=(AxFormationTable const& other)
{
    AxRwTemplatedListPtr::operator=(other);
    return *this;
}

AxFormationTableEntry* AxFormationTable::lookup(AxString const& formationType) const
{
    for (AxFormationTableEntry* entry : *this)
    {
        if (entry->formationType() == formationType)
        {
            return entry;
        }
    }
    return nullptr;
}

AxFormationTableEntry* AxFormationTable::defaultFormation() const
{
    AxString const& wanted = myDefaultFormation.value();
    AxFormationTableEntry* const named = wanted.isNull() ? nullptr : lookup(wanted);
    return named ? named : static_cast<AxFormationTableEntry*>(firstElement());
}

AxString const& AxFormationTable::defaultFormationType() const
{
    AxFormationTableEntry const* const entry = defaultFormation();
    return entry ? entry->formationType() : AxString::nullString();
}

char const* AxFormationTable::readerWriterType() const
{
    return "AxFormationTable";
}

char const* AxFormationTable::xmlType() const
{
    return "AxFormationTable";
}
