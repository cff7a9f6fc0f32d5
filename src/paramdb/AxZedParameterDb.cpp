#include "AxZedParameterDb.h"

#include "AxDiagnostic.h"
#include "AxReaderWriterFileExtensible.h"
#include "AxTypeIndex.h"
#include "AxZedObjectParameters.h"
#include "AxZedParameterDbEntry.h"

#include <utility>
#include <vector>

namespace
{
AxObjectType const* typeOfEntry(void const* data)
{
    return data != nullptr ? &static_cast<AxZedParameterDbEntry const*>(data)->objectType() : nullptr;
}

void reportMisuse(char const* code, char const* text, std::string const& statedLine)
{
    AxDiagnostic misuse;
    misuse.code = code;
    misuse.text = text;
    AxDiagnostics::reportStated(std::move(misuse), statedLine);
}
} // namespace

struct AxZedParameterDb::Parked
{
    std::map<AxObjectType, AxZedParameterDbEntry*> entries;
};

AxZedParameterDb::AxZedParameterDb()
{
    auto const itemOfEntry = [](void* entry) -> AxListItem*&
    { return static_cast<AxZedParameterDbEntry*>(entry)->myItem; };
    myIndex = std::make_unique<AxTypeIndex>(myList, typeOfEntry, itemOfEntry);
}

AxZedParameterDb::~AxZedParameterDb()
{
    AxZedParameterDb::removeAll();
}

bool AxZedParameterDb::init()
{
    return true;
}

AxZedParameterDbEntry* AxZedParameterDb::add(AxObjectType const& type, AxZedObjectParameters* params)
{
    if (params == nullptr)
    {
        reportMisuse("null-parameters", "no record to add",
                     "AxZedParameterDb::addParameters() : Attempt to add NULL parameter entry\n");
        return nullptr;
    }
    AxZedParameterDbEntry* const entry = createParameterEntry();
    if (entry != nullptr)
    {
        entry->setObjectType(type);
        entry->setParameters(params);
    }
    addParameterDbEntry(entry);
    return entry;
}

AxZedObjectParameters* AxZedParameterDb::lookup(AxObjectType const& type, AxObjectType* matchedType, AxString*) const
{
    AxZedParameterDbEntry const* const entry = lookupParameterDbEntry(type, matchedType);
    return entry != nullptr ? entry->parameters() : nullptr;
}

void AxZedParameterDb::remove(AxObjectType const& type)
{
    AxZedParameterDbEntry* const entry = entryOf(lookupParameters(type));
    if (entry != nullptr && entry->objectType() == type)
    {
        delete entry;
    }
}

void AxZedParameterDb::removeAll()
{
    std::vector<AxZedParameterDbEntry*> entries;
    entries.reserve(myIndex->count());
    myAnswer = {};
    myIndex->removeAll([&](void* entry) { entries.push_back(static_cast<AxZedParameterDbEntry*>(entry)); });
    if (myParked != nullptr)
    {
        for (auto const& [type, entry] : myParked->entries)
        {
            entries.push_back(entry);
        }
    }
    myParked.reset();
    for (AxZedParameterDbEntry* const entry : entries)
    {
        if (entry != nullptr)
        {
            entry->myHolder = nullptr;
            delete entry;
        }
    }
}

AxList const& AxZedParameterDb::parameterList() const
{
    myIndex->arrange();
    return myList;
}

bool AxZedParameterDb::load(AxFilename const&)
{
    return true;
}

bool AxZedParameterDb::save(AxFilename const&)
{
    return true;
}

void AxZedParameterDb::addParameters(AxObjectType const& type, AxZedObjectParameters* params)
{
    add(type, params);
}

AxListItem* AxZedParameterDb::lookupParameters(AxObjectType const& type) const
{
    AxTypeIndex::Found const found = &type == myInsertedType ? myIndex->firstOf(type) : myIndex->bestMatch(type);
    myAnswer = {found.item, static_cast<AxZedParameterDbEntry*>(found.data)};
    return found.item;
}

AxZedObjectParameters* AxZedParameterDb::lookupParameters(AxObjectType const& type, AxObjectType* matchedType) const
{
    return lookup(type, matchedType, nullptr);
}

void AxZedParameterDb::removeParameters(AxObjectType const& type)
{
    remove(type);
}

void AxZedParameterDb::removeAndDeleteAll()
{
    removeAll();
}

AxZedParameterDbEntry* AxZedParameterDb::lookupParameterDbEntry(AxObjectType const& type,
                                                                AxObjectType* matchedType) const
{
    AxZedParameterDbEntry* const entry = entryOf(lookupParameters(type));
    if (entry != nullptr && matchedType != nullptr)
    {
        *matchedType = entry->objectType();
    }
    return entry;
}

int AxZedParameterDb::numParameterEntries() const
{
    return static_cast<int>(myIndex->count());
}

std::list<AxString>* AxZedParameterDb::getSysDefExtensionList()
{
    return AxReaderWriterFileExtensible::getExtensionList();
}

void AxZedParameterDb::addExtension(AxString ext)
{
    AxReaderWriterFileExtensible::addExtension(ext);
}

void AxZedParameterDb::addParameterDbEntry(AxZedParameterDbEntry* entry)
{
    if (entry == nullptr)
    {
        reportMisuse("null-entry", "no entry to add",
                     "AxZedParameterDb::addParameters : attempting to add NULL entry\n");
        return;
    }
    if (entry->myHolder != nullptr)
    {
        AxDiagnostic held;
        held.code = "entry-held";
        held.text = "the entry for " + entry->objectType().string().string() + " is in a database already";
        AxDiagnostics::report(std::move(held));
        return;
    }
    AxObjectType const& type = entry->objectType();
    myInsertedType = &type;
    AxZedParameterDbEntry const* const old = entryOf(lookupParameters(type));
    myInsertedType = nullptr;
    myAnswer = {}; // may be of an entry that has no item yet
    bool const isReplaced =
        old != nullptr && old->objectType() == type && (old->typeIsMatchType() || !entry->typeIsMatchType());
    if (isReplaced)
    {
        removeParameters(type);
    }
    entry->myHolder = this;
    if (!myIndex->insertLater(entry, type))
    {
        park(entry);
    }
}

AxZedParameterDbEntry* AxZedParameterDb::createParameterEntry() const
{
    return new AxZedParameterDbEntry;
}

AxZedParameterDb* AxZedParameterDb::create()
{
    return new AxZedParameterDb;
}

AxZedParameterDb::Match AxZedParameterDb::entryForLookup(AxObjectType const& type) const
{
    Match match;
    match.entry = lookupParameterDbEntry(type, nullptr);
    match.exact = match.entry != nullptr && match.entry->objectType() == type;
    return match;
}

AxZedParameterDbEntry* AxZedParameterDb::entryOf(AxListItem const* item) const
{
    return item == myAnswer.item ? myAnswer.entry : static_cast<AxZedParameterDbEntry*>(item->data());
}

void AxZedParameterDb::release(AxZedParameterDbEntry& entry)
{
    myAnswer = {};
    entry.myHolder = nullptr;
    myIndex->arrange(); // gives every entry of the list its item
    if (entry.myItem != nullptr)
    {
        myIndex->remove(entry.myItem);
        entry.myItem = nullptr;
        return;
    }
    if (myParked)
    {
        std::erase_if(myParked->entries, [&entry](auto const& parked) { return parked.second == &entry; });
    }
}

void AxZedParameterDb::expectEntries(std::size_t count)
{
    myIndex->expect(count);
}

void AxZedParameterDb::typeChanges()
{
    myIndex->invalidate();
}

void AxZedParameterDb::park(AxZedParameterDbEntry* entry)
{
    if (myParked == nullptr)
    {
        myParked = std::make_unique<Parked>();
    }
    AxZedParameterDbEntry*& place = myParked->entries[entry->objectType()];
    AxZedParameterDbEntry* const former = std::exchange(place, entry);
    if (former != nullptr)
    {
        former->myHolder = nullptr;
        delete former;
    }
}
