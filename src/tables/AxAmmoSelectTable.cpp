#include "AxAmmoSelectTable.h"

#include "AxIsForeign.h"
#include "AxReaderWriterFactory.h"
#include "AxStreams.h"
#include "AxTypeLookup.h"
#include "axTryNew.h"

#include <memory>

static AxTypeEntry<AxAmmoSelectTable> const ammoSelectTableEntry;

AxAmmoSelectTable::AxAmmoSelectTable(AxAmmoSelectTable const& other)
    : AxRwTemplatedListPtr(other.AxReaderWriter::name(), nullptr)
{
    copyList(other);
    carryState(other);
}

AxAmmoSelectTable::~AxAmmoSelectTable() = default;

AxAmmoSelectTable& AxAmmoSelectTable::operator=(AxAmmoSelectTable const& other)
{
    if (this != &other)
    {
        clear();
        copyList(other);
        carryState(other);
    }
    return *this;
}

void AxAmmoSelectTable::copyList(AxAmmoSelectTable const& other)
{
    if (&other == this)
    {
        return;
    }
    for (AxAmmoSelectEntry const* entry : other)
    {
        addAmmoSelectEntry(*entry);
    }
}

AxSimMunitionList const& AxAmmoSelectTable::simMunitionList(AxEntityType const& target, AxEntityType* matched) const
{
    auto const* const found = static_cast<AxAmmoSelectEntry const*>(element(lookupAmmoSelectEntry(target)));
    if (!found)
    {
        AxVerbose("No munition list found for %d %d %d %d %d %d %d\n", target.kind(), target.domain(), target.country(),
                  target.category(), target.subcategory(), target.specific(), target.extra());
        return myEmptyList;
    }
    if (matched)
    {
        *matched = found->targetType();
    }
    return found->simMunitionList();
}

AxAmmoSelectEntry* AxAmmoSelectTable::addAmmoSelectEntry(AxAmmoSelectEntry const& entry)
{
    auto* const copy = axTryNew<AxAmmoSelectEntry>(entry);
    if (!copy)
    {
        AxWarn("Memory allocation failed in AxAmmoSelectTable::copyList\n");
    }
    return addAmmoSelectEntry(copy);
}

AxAmmoSelectEntry* AxAmmoSelectTable::addAmmoSelectEntry(AxAmmoSelectEntry* entry)
{
    addToEnd(entry);
    return entry;
}

AxListItem* AxAmmoSelectTable::lookupAmmoSelectEntry(AxEntityType const& target) const
{
    return axLookUpByType<AxAmmoSelectEntry>(*this, target);
}

AxlObjPtr AxAmmoSelectTable::getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings)
{
    auto entry = std::make_unique<AxAmmoSelectEntry>();
    if (axIsForeign(item.get(), *entry))
    {
        keepElement(item.get());
        return item;
    }
    entry->getSelf(item, files, bindings);
    addAmmoSelectEntry(entry.release());
    return item;
}

char const* AxAmmoSelectTable::readerWriterType() const
{
    return "AxAmmoSelectTable";
}

AxSymbolString AxAmmoSelectTable::elementWord()
{
    static AxSymbolString const word("ammo-select");
    return word;
}
