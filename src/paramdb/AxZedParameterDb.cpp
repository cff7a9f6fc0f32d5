#include "AxZedParameterDb.h"

#include "AxDiagnostic.h"
#include "AxGuarded.h"
#include "AxReaderWriterFileExtensible.h"
#include "AxTypeIndex.h"
#include "AxZedObjectParameters.h"
#include "AxZedParameterDbEntry.h"

#include <new>
#include <utility>

namespace
{
AxObjectType const* typeOfEntry(void const* data)
{
    return data != nullptr ? &static_cast<AxZedParameterDbEntry const*>(data)->objectType() : nullptr;
}

void reportMisuse(char const* code, char const* text, char const* statedLine)
{
    axGuarded(code, AxFilename::nullFilename(), false,
              [&]
              {
                  AxDiagnostic misuse;
                  misuse.code = code;
                  misuse.text = text;
                  AxDiagnostics::reportStated(std::move(misuse), statedLine);
                  return true;
              });
}
} // namespace

AxZedParameterDb::AxZedParameterDb() : myIndex(std::make_unique<AxTypeIndex>(myList, typeOfEntry)) {}

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
    AxZedParameterDbEntry* const none = nullptr;
    return axGuarded("add-failed", AxFilename::nullFilename(), none,
                     [&]
                     {
                         AxZedParameterDbEntry* const entry = createParameterEntry();
                         if (entry != nullptr)
                         {
                             entry->setObjectType(type);
                             entry->setParameters(params);
                         }
                         addParameterDbEntry(entry);
                         return entry;
                     });
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
        discard(*entry);
    }
}

void AxZedParameterDb::removeAll()
{
    myAnswer = {};
    AxList going;
    for (AxList* const list : {&myList, &myOutside})
    {
        if (myKnowsEntries)
        {
            list->unlinkAll();
            continue;
        }
        myIndex->arrange();
        while (!list->isEmpty())
        {
            list->moveTo(going, list->first());
        }
    }
    myIndex->start();
    myKnowsEntries = true;
    myNumGone = 0;
    for (AxZedParameterDbEntry* const entry : std::exchange(myEntries, {}))
    {
        destroy(entry);
    }
    while (AxListItem* const item = going.first())
    {
        going.unlink(*item);
        destroy(static_cast<AxZedParameterDbEntry*>(item->data()));
    }
}

/// An entry that is in none of the lists.
void AxZedParameterDb::destroy(AxZedParameterDbEntry* entry)
{
    if (entry == nullptr)
    {
        return;
    }
    entry->myHolder = nullptr;
    entry->myIsGone = true;
    if (entry->myNumUses == 0)
    {
        delete entry;
    }
}

void AxZedParameterDb::discard(AxZedParameterDbEntry& entry)
{
    release(entry);
    destroy(&entry);
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
        axGuarded("entry-held", AxFilename::nullFilename(), false,
                  [entry]
                  {
                      AxDiagnostic held;
                      held.code = "entry-held";
                      held.text =
                          "the entry for " + entry->objectType().string().string() + " is in a database already";
                      AxDiagnostics::report(std::move(held));
                      return true;
                  });
        return;
    }
    AxObjectType const& type = entry->objectType();
    // A derived search or removal may throw; the entry has its place all the same.
    axGuarded("lookup-failed", AxFilename::nullFilename(), false,
              [&]
              {
                  myInsertedType = &type;
                  AxZedParameterDbEntry const* const old = entryOf(lookupParameters(type));
                  myInsertedType = nullptr;
                  bool const isReplaced = old != nullptr && old->objectType() == type &&
                                          (old->typeIsMatchType() || !entry->typeIsMatchType());
                  if (isReplaced)
                  {
                      removeParameters(type);
                  }
                  return isReplaced;
              });
    myInsertedType = nullptr;
    myAnswer = {};
    insert(*entry);
}

void AxZedParameterDb::insert(AxZedParameterDbEntry& entry)
{
    entry.myHolder = this;
    if (myKnowsEntries)
    {
        try
        {
            entry.myNumber = static_cast<std::uint32_t>(myEntries.size());
            myEntries.push_back(&entry);
        }
        catch (std::bad_alloc const&)
        {
            myKnowsEntries = false;
            std::exchange(myEntries, {});
        }
    }
    entry.myIsOutside = !myIndex->linkLater(entry.myItem, entry.objectType());
    if (entry.myIsOutside)
    {
        leaveOutside(entry);
    }
}

/// One entry of a type; those that come later seldom sort below.
void AxZedParameterDb::leaveOutside(AxZedParameterDbEntry& entry)
{
    AxListItem* before = myOutside.last();
    while (before != nullptr && entry.objectType() < *typeOfEntry(before->data()))
    {
        before = before->previous();
    }
    myOutside.link(entry.myItem, before != nullptr ? before->next() : myOutside.first());
    if (before != nullptr && *typeOfEntry(before->data()) == entry.objectType())
    {
        discard(*static_cast<AxZedParameterDbEntry*>(before->data()));
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
    if (item == nullptr)
    {
        return nullptr;
    }
    return item == myAnswer.item ? myAnswer.entry : static_cast<AxZedParameterDbEntry*>(item->data());
}

void AxZedParameterDb::release(AxZedParameterDbEntry& entry)
{
    myAnswer = {};
    entry.myHolder = nullptr;
    forgetNumber(entry);
    if (entry.myIsOutside)
    {
        myOutside.unlink(entry.myItem);
    }
    else
    {
        myIndex->unlink(entry.myItem);
    }
}

void AxZedParameterDb::forgetNumber(AxZedParameterDbEntry const& entry)
{
    if (!myKnowsEntries)
    {
        return;
    }
    myEntries[entry.myNumber] = nullptr;
    ++myNumGone;
    while (!myEntries.empty() && myEntries.back() == nullptr)
    {
        myEntries.pop_back();
        --myNumGone;
    }
    if (myNumGone > myEntries.size() / 2)
    {
        std::erase(myEntries, nullptr);
        for (std::size_t number = 0; number < myEntries.size(); ++number)
        {
            myEntries[number]->myNumber = static_cast<std::uint32_t>(number);
        }
        myNumGone = 0;
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
