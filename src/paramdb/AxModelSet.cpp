#include "AxModelSet.h"

#include "AxGuarded.h"
#include "AxModelSetLoading.h"
#include "AxReaderWriterFactory.h"
#include "AxSimulationObjectGroupModelSetEntry.h"
#include "axTryNew.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace
{
/// Elements are read through cells, one by one, so that a fault leaves those in front of it.
AxTypeOps modelSetOps()
{
    AxTypeOps ops = AxTypeOps::withCreator<AxModelSet>();
    ops.readElement = [](AxRwList&, AxTextReader&, AxFilenameList const&, AxBindingsList const&) { return false; };
    return ops;
}

AxTypeEntry<AxModelSet> const theModelSetEntry(modelSetOps());

int equalFields(AxObjectType const& a, AxObjectType const& b)
{
    int count = 0;
    for (std::size_t i = 0; i < AxObjectType::theNumFields; ++i)
    {
        count += a.fields()[i] == b.fields()[i] ? 1 : 0;
    }
    return count;
}

/// The shift by 23 is part of the format of the identifiers, which scenarios store.
std::uint32_t labelHash(std::string_view label)
{
    std::uint32_t hash = 0;
    for (char const byte : label)
    {
        hash = (hash << 4) + static_cast<unsigned char>(byte);
        std::uint32_t const high = hash & 0xF0000000U;
        hash = (hash ^ (high >> 23)) & ~high;
    }
    return hash;
}

template <class Fits>
AxModelSetEntry* firstOf(AxModelSet const& models, Fits const& fits)
{
    for (AxModelSetEntry* entry : models)
    {
        if (fits(entry))
        {
            return entry;
        }
    }
    return nullptr;
}
/// All values, but not an empty identifier: scenarios know the entry by the one it has.
void takeOver(AxModelSetEntry& known, AxModelSetEntry const& entry)
{
    using Group = AxSimulationObjectGroupModelSetEntry;
    AxString const id = known.uniqueId();
    auto* const knownGroup = dynamic_cast<Group*>(&known);
    auto const* const group = dynamic_cast<Group const*>(&entry);
    if (knownGroup && group)
    {
        *knownGroup = *group;
    }
    else
    {
        known = entry;
    }
    if (known.uniqueId().isNull() && !id.isNull())
    {
        known.setUniqueId(id);
    }
}
} // namespace

AxModelSet::AxModelSet(AxSymbolString name, AxReaderWriterRegistry* registry) : AxRwList(name, registry) {}

AxModelSet::AxModelSet(AxModelSet const& other) : AxModelSet(other.AxReaderWriter::name(), nullptr)
{
    *this = other;
}

AxModelSet::~AxModelSet()
{
    AxRwList::removeAndDeleteAll();
}

AxModelSet& AxModelSet::operator=(AxModelSet const& other)
{
    if (this != &other)
    {
        clear();
        copyList(other);
        assign(other);
    }
    return *this;
}

AxModelSet* AxModelSet::create(AxSymbolString name, AxReaderWriterRegistry* registry)
{
    return axTryNew<AxModelSet>(name, registry);
}

void AxModelSet::copyList(AxModelSet const& other)
{
    AxListItem const* const last = other.last(); // other may be this set
    for (AxListItem const* item = last ? other.first() : nullptr; item; item = item == last ? nullptr : item->next())
    {
        auto const* const entry = static_cast<AxModelSetEntry const*>(element(item));
        add(entry->clone());
        addCategoriesFrom(*entry);
    }
    myNextGroupType = std::max(myNextGroupType, other.myNextGroupType);
}

void AxModelSet::addToStart(AxReaderWriter* rw)
{
    if (dynamic_cast<AxModelSetEntry*>(rw))
    {
        AxRwList::addToStart(rw);
    }
}

void AxModelSet::addToEnd(AxReaderWriter* rw)
{
    auto* const entry = dynamic_cast<AxModelSetEntry*>(rw);
    if (!entry)
    {
        return;
    }
    bool const isIndexed = myIndexedChange == changeCount();
    AxList::add(entry); // without it the entry stays the caller's
    setFlag(Specified, true);
    valueAssigned();
    if (isIndexed)
    {
        myIndexedChange = axGuarded("not-indexed", AxFilename::nullFilename(), myIndexedChange,
                                    [this]
                                    {
                                        addToIndex(last());
                                        return changeCount();
                                    });
    }
}

void AxModelSet::remove(AxReaderWriter* rw, AxListItem* item)
{
    // Both may be of another list.
    AxListItem* const place = item ? item : knownItemOf(dynamic_cast<AxModelSetEntry const*>(rw));
    auto const* const entry = dynamic_cast<AxModelSetEntry const*>(element(place));
    if (!entry)
    {
        return;
    }
    // Of entries of one type another one comes to the front; of an entry whose type changed the old one is not known.
    auto const found = myIndex.find(entry->objectType());
    bool const isSettled =
        myIndexedChange == changeCount() && !myHasRepeatedTypes && found != myIndex.end() && found->second == place;
    AxRwList::remove(rw, place);
    if (isSettled)
    {
        myIndex.erase(found);
        myIndexedChange = changeCount();
    }
}

AxListItem* AxModelSet::knownItemOf(AxModelSetEntry const* entry) const
{
    refreshIndex();
    auto const found = entry ? myIndex.find(entry->objectType()) : myIndex.end();
    return found != myIndex.end() && element(found->second) == entry ? found->second : itemOf(entry);
}

void AxModelSet::removeAndDeleteAll()
{
    AxRwList::removeAndDeleteAll();
    myCategories.clear();
    myCategoriesAreOld = false;
}

AxlObjPtr AxModelSet::getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings)
{
    bool const isGroup = item->car()->text() == AxSimulationObjectGroupModelSetEntry::theElementWord().view();
    std::unique_ptr<AxModelSetEntry> entry;
    if (isGroup)
    {
        entry = std::make_unique<AxSimulationObjectGroupModelSetEntry>(AxSymbolString(), nullptr);
    }
    else
    {
        entry = std::make_unique<AxModelSetEntry>(AxSymbolString(), nullptr);
    }
    entry->getSelf(item, files, bindings);
    if (myKeepsAll)
    {
        AxRwList::addToEnd(entry.release());
    }
    else
    {
        adopt(std::move(entry));
    }
    return item;
}

AxModelSetEntry* AxModelSet::addModel(AxModelSetEntry* entry, bool copy)
{
    AxModelSetEntry* const none = nullptr;
    return entry ? axGuarded("add-failed", AxFilename::nullFilename(), none, [&] { return takeModel(entry, copy); })
                 : nullptr;
}

AxModelSetEntry* AxModelSet::takeModel(AxModelSetEntry* entry, bool copy)
{
    auto* const group = dynamic_cast<AxSimulationObjectGroupModelSetEntry*>(entry);
    if (group && group->objectType().isNull())
    {
        group->setObjectType(myNextGroupType);
    }
    if (AxModelSetEntry* const known = find(entry->objectType()))
    {
        AxString const id = known->uniqueId();
        takeOver(*known, *entry);
        if (myLoading && !(known->uniqueId() == id))
        {
            myLoading->replace(id, known->uniqueId());
        }
        addCategoriesFrom(*known);
        return known;
    }
    std::unique_ptr<AxModelSetEntry> made(copy ? entry->clone() : nullptr);
    AxModelSetEntry* const added = copy ? made.get() : entry;
    if (added->uniqueId().isNull())
    {
        added->setUniqueId(unusedID(createUniqueID(*added)));
    }
    if (myLoading)
    {
        myLoading->add(added->uniqueId());
    }
    add(added);
    static_cast<void>(made.release());
    addCategoriesFrom(*added);
    if (group)
    {
        updateNextSimulationObjectGroupObjectType(added->objectType());
    }
    return added;
}

AxString AxModelSet::unusedID(AxString const& base) const
{
    int first = 0;
    int& number = myLoading ? myLoading->numberOf(base) : first;
    auto const candidate = [&base, &number]
    { return number == 0 ? base : base + "-" + AxString(std::to_string(number)); };
    AxString id = candidate();
    while (myLoading ? myLoading->isUsed(id) : findByUniqueID(id) != nullptr)
    {
        ++number;
        id = candidate();
    }
    return id;
}

void AxModelSet::adopt(std::unique_ptr<AxModelSetEntry> entry)
{
    AxObjectType const& type = entry->objectType();
    bool const isGroup = dynamic_cast<AxSimulationObjectGroupModelSetEntry*>(entry.get()) != nullptr;
    bool const isUntyped = type.isNull() && !isGroup && find(type);
    if (isUntyped && !myLoading)
    {
        AxRwList::addToEnd(entry.release()); // the set that takes it in gives it the rest
    }
    else if (isUntyped)
    {
        if (entry->uniqueId().isNull())
        {
            entry->setUniqueId(unusedID(createUniqueID(*entry)));
        }
        myLoading->add(entry->uniqueId());
        addToEnd(entry.get());
        addCategoriesFrom(*entry.release());
    }
    else
    {
        if (takeModel(entry.get(), false) == entry.get())
        {
            static_cast<void>(entry.release());
        }
    }
}

bool AxModelSet::removeModel(AxObjectType const& type)
{
    return removeModel(find(type));
}

bool AxModelSet::removeModel(AxModelSetEntry* entry)
{
    AxListItem* const item = entry ? knownItemOf(entry) : nullptr;
    if (!item)
    {
        return false;
    }
    remove(entry, item);
    delete entry;
    myCategoriesAreOld = true;
    return true;
}

void AxModelSet::refreshCategories() const
{
    if (myCategoriesAreOld)
    {
        myCategories.clear();
        for (AxModelSetEntry const* entry : *this)
        {
            mergeCategories(*entry);
        }
        myCategoriesAreOld = false;
    }
}

void AxModelSet::mergeCategories(AxModelSetEntry const& entry) const
{
    for (AxString const& palette : entry.onPalettes())
    {
        myCategories[palette].insert(entry.categories().begin(), entry.categories().end());
    }
}

void AxModelSet::addToIndex(AxListItem* item) const
{
    auto* const entry = static_cast<AxModelSetEntry*>(element(item));
    myHasRepeatedTypes = !myIndex.emplace(entry->objectType(), item).second || myHasRepeatedTypes;
}

void AxModelSet::refreshIndex() const
{
    if (myIndexedChange != changeCount())
    {
        myIndex.clear();
        myHasRepeatedTypes = false;
        for (AxListItem* item = first(); item; item = item->next())
        {
            addToIndex(item);
        }
        myIndexedChange = changeCount();
    }
}

AxModelSetEntry* AxModelSet::find(AxObjectType const& type) const
{
    refreshIndex();
    auto const found = myIndex.find(type);
    auto* const known = found == myIndex.end() ? nullptr : static_cast<AxModelSetEntry*>(element(found->second));
    if (known && known->objectType() == type)
    {
        return known;
    }
    // A caller may have given an entry another type since.
    return myLoading ? nullptr
                     : firstOf(*this, [&type](AxModelSetEntry const* entry) { return entry->objectType() == type; });
}

AxModelSetEntry* AxModelSet::findMatchingPattern(AxObjectType const& type) const
{
    AxModelSetEntry* best = nullptr;
    int most = -1;
    for (AxModelSetEntry* entry : *this)
    {
        if (!type.matchPattern(entry->objectType()))
        {
            continue;
        }
        if (int const count = equalFields(type, entry->objectType()); count >= most)
        {
            most = count;
            best = entry;
        }
    }
    return best;
}

AxModelSetEntry* AxModelSet::findByLabel(AxString const& label) const
{
    return firstOf(*this, [&label](AxModelSetEntry const* entry) { return entry->label() == label; });
}

AxModelSetEntry* AxModelSet::findByUniqueID(AxString const& id) const
{
    return firstOf(*this, [&id](AxModelSetEntry const* entry) { return entry->uniqueId() == id; });
}

AxSimulationObjectGroupModelSetEntry* AxModelSet::findSimulationObjectGroup(AxString const& name) const
{
    using Group = AxSimulationObjectGroupModelSetEntry;
    auto const isIt = [&name](AxModelSetEntry const* entry)
    { return entry->label() == name && dynamic_cast<Group const*>(entry); };
    return static_cast<Group*>(firstOf(*this, isIt));
}

AxObjectType AxModelSet::objectTypeFor(AxString const& label) const
{
    AxModelSetEntry const* const entry = findByLabel(label);
    return entry ? entry->objectType() : AxObjectType::nullType();
}

void AxModelSet::entitiesForObjectType(AxObjectType const& type, std::list<AxString>& out) const
{
    for (AxModelSetEntry const* entry : *this)
    {
        if (entry->objectType().matchPattern(type))
        {
            out.push_back(entry->label());
        }
    }
}

AxString AxModelSet::createUniqueID(AxString const& label)
{
    return AxString("ModelSet-" + std::to_string(labelHash(label.string())) + '-' + label.string());
}

std::set<AxString> AxModelSet::categories() const
{
    refreshCategories();
    std::set<AxString> all;
    for (auto const& [palette, categories] : myCategories)
    {
        all.insert(categories.begin(), categories.end());
    }
    return all;
}

std::set<AxString> const& AxModelSet::categoriesForPalette(AxString const& palette) const
{
    static std::set<AxString> const none;
    refreshCategories();
    auto const found = myCategories.find(palette);
    return found == myCategories.end() ? none : found->second;
}

void AxModelSet::addCategoriesFrom(AxModelSetEntry const& entry)
{
    // Without memory they are taken from all entries when they are asked for.
    myCategoriesAreOld = axGuarded("no-categories", AxFilename::nullFilename(), true,
                                   [&]
                                   {
                                       refreshCategories();
                                       mergeCategories(entry);
                                       return false;
                                   });
}

void AxModelSet::updateNextSimulationObjectGroupObjectType(AxObjectType const& used)
{
    if (used < myNextGroupType)
    {
        return;
    }
    constexpr std::int32_t last = 255;
    AxObjectType::Fields fields = used.fields();
    std::size_t i = fields.size() - 1;
    for (; i > 0 && fields[i] >= last; --i)
    {
        fields[i] = 0;
    }
    if (fields[i] == std::numeric_limits<std::int32_t>::max())
    {
        return; // no type comes after it
    }
    ++fields[i];
    myNextGroupType = AxObjectType(fields);
}
