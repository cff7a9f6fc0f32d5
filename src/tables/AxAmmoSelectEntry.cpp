#include "AxAmmoSelectEntry.h"

#include "AxAmmoSelectTable.h"

AxAmmoSelectEntry::AxAmmoSelectEntry() : AxAmmoSelectEntry(AxAmmoSelectTable::elementWord(), nullptr) {}

AxAmmoSelectEntry::AxAmmoSelectEntry(AxSymbolString name, AxAmmoSelectEntry const& other,
                                     AxReaderWriterRegistry* registry)
    : AxAmmoSelectEntry(name, registry)
{
    assign(other);
}

AxAmmoSelectEntry::AxAmmoSelectEntry(AxAmmoSelectEntry const& other, AxReaderWriterRegistry* registry)
    : AxAmmoSelectEntry(other.AxReaderWriter::name(), other, registry)
{
}

AxAmmoSelectEntry::~AxAmmoSelectEntry() = default;

AxAmmoSelectEntry& AxAmmoSelectEntry::operator=(AxAmmoSelectEntry const& other)
{
    assign(other);
    return *this;
}

void AxAmmoSelectEntry::setTargetType(AxEntityType const& type)
{
    assignSpecified(myTargetType, type);
}

void AxAmmoSelectEntry::setSimMunitionList(AxSimMunitionList const& munitions)
{
    assignSpecified(myAmmo, munitions);
}
