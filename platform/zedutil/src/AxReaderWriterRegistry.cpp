#include "AxReaderWriterRegistry.h"

#include "AxPlainValue.h"
#include "AxReaderWriterFactory.h"
#include "AxRegistryShape.h"

#include <algorithm>
#include <limits>

AxReaderWriterRegistry::AxReaderWriterRegistry() : AxReaderWriterRegistry(nullptr) {}

AxReaderWriterRegistry::AxReaderWriterRegistry(AxReaderWriter* owner) : myOwner(owner), myShape(AxRegistryShape::root())
{
}

AxReaderWriterRegistry::~AxReaderWriterRegistry()
{
    if (myOwn)
    {
        // Created members would unregister one by one; the list is cleared first.
        for (AxRegistryEntry const& entry : myOwn->entries)
        {
            if (AxReaderWriter::Rest* rest = entry.member->restOrNull(); rest && rest->parent == this)
            {
                rest->parent = nullptr;
            }
        }
        myOwn->entries.clear();
    }
}

AxReaderWriterRegistry::Own& AxReaderWriterRegistry::own()
{
    if (!myOwn)
    {
        myOwn = std::make_unique<Own>();
    }
    return *myOwn;
}

void AxReaderWriterRegistry::bind(AxReaderWriter& member, AxKeyword const& keyword)
{
    bindOtherwise(member, keyword,
                  reinterpret_cast<std::uintptr_t>(&member) - reinterpret_cast<std::uintptr_t>(myOwner));
}

void AxReaderWriterRegistry::bindOtherwise(AxReaderWriter& member, AxKeyword const& keyword, std::size_t distance)
{
    constexpr std::size_t farthest = std::numeric_limits<std::uint16_t>::max() * AxRegistryShape::theUnit;
    bool const isInOwner = myOwner && distance != 0 && distance <= farthest && distance % AxRegistryShape::theUnit == 0;
    if (isInOwner && (!myOwn || myOwn->entries.empty()))
    {
        auto const place = static_cast<std::uint16_t>(distance / AxRegistryShape::theUnit);
        bindTo(*myShape->child(*myOwner, keyword, place), member);
        return;
    }
    AxSymbolString const name(keyword.text);
    member.rest().name = name;
    addEntry(name, &member);
}

void AxReaderWriterRegistry::removeMember(AxReaderWriter const& member)
{
    if (myShape->place == member.myPlace)
    {
        myShape = myShape->parent();
        return;
    }
    removeEntry(&member);
}

void AxReaderWriterRegistry::addEntry(AxSymbolString keyword, AxReaderWriter* member)
{
    if (!member)
    {
        return;
    }
    // It leaves one registry when it ends, so it may stand in no other.
    for (AxReaderWriterRegistry* const former : {member->parentRegistry(), member->rest().parent})
    {
        if (former)
        {
            former->removeEntry(member);
        }
    }
    if (!keyword.isNull())
    {
        if (AxReaderWriter* older = lookup(keyword))
        {
            removeEntry(older);
        }
    }
    member->rest(); // takes its memory before the entry does
    own().entries.push_back({keyword, member});
    member->rest().parent = this; // a member that a parent does not hold must not be sought there as it ends
}

void AxReaderWriterRegistry::addContentEntry(AxSymbolString keyword, AxReaderWriter* member)
{
    if (member)
    {
        removeEntry(member);
        member->rest();
        own().entries.push_back({keyword, member, true, false});
        member->rest().parent = this;
    }
}

void AxReaderWriterRegistry::leaveShape()
{
    std::vector<AxRegistryEntry> entries;
    for (AxRegistryTable::Slot const& slot : table().slots)
    {
        entries.push_back(entryOf(*slot.shape));
    }
    for (AxRegistryShape const* shape = myShape; !shape->isRoot(); shape = shape->parent())
    {
        at(shape->distance)->rest(); // keeps the name that was the shape's
    }
    Own& mine = own();
    mine.entries.insert(mine.entries.begin(), entries.begin(), entries.end());
    myShape = AxRegistryShape::root();
}

AxRegistryEntry* AxReaderWriterRegistry::ownEntry(AxReaderWriter const* member) const
{
    if (myOwn)
    {
        for (AxRegistryEntry& entry : myOwn->entries)
        {
            if (entry.member == member)
            {
                return &entry;
            }
        }
    }
    return nullptr;
}

bool AxReaderWriterRegistry::removeEntry(AxReaderWriter const* member)
{
    AxRegistryEntry* entry = ownEntry(member);
    if (!entry)
    {
        auto const& slots = table().slots;
        if (std::none_of(slots.begin(), slots.end(),
                         [this, member](AxRegistryTable::Slot const& slot) { return at(slot.distance) == member; }))
        {
            return false;
        }
        leaveShape();
        entry = ownEntry(member);
    }
    AxReaderWriter* const leaving = entry->member;
    std::vector<AxRegistryEntry>& entries = myOwn->entries;
    entries.erase(entries.begin() + (entry - entries.data()));
    if (AxReaderWriter::Rest* rest = leaving->restOrNull(); rest && rest->parent == this)
    {
        rest->parent = nullptr;
    }
    return true;
}

bool AxReaderWriterRegistry::removeEntry(AxSymbolString keyword)
{
    AxReaderWriter const* member = lookup(keyword);
    return member && removeEntry(member);
}

AxReaderWriter* AxReaderWriterRegistry::lookup(AxSymbolString keyword) const
{
    AxRegistryTable const& shared = table();
    std::size_t const slot = shared.find(keyword);
    if (slot != AxRegistryTable::none)
    {
        return at(shared.slots[slot].distance);
    }
    if (myOwn)
    {
        for (AxRegistryEntry const& entry : myOwn->entries)
        {
            if (entry.keyword == keyword && !entry.content)
            {
                return entry.member;
            }
        }
    }
    return nullptr;
}

AxReaderWriter* AxReaderWriterRegistry::lookupByAlias(AxSymbolString alias) const
{
    for (AxRegistryTable::Slot const& slot : table().slots)
    {
        if (AxReaderWriter* const member = at(slot.distance); member->hasAlias(alias))
        {
            return member;
        }
    }
    if (myOwn)
    {
        for (AxRegistryEntry const& candidate : myOwn->entries)
        {
            if (!candidate.content && candidate.member->hasAlias(alias))
            {
                return candidate.member;
            }
        }
    }
    return nullptr;
}

AxReaderWriter* AxReaderWriterRegistry::find(AxSymbolString keyword) const
{
    AxReaderWriter* const member = lookup(keyword);
    return member ? member : lookupByAlias(keyword);
}

AxReaderWriter* AxReaderWriterRegistry::createMember(AxString const& type, AxSymbolString keyword)
{
    std::unique_ptr<AxReaderWriter> made(AxReaderWriter::factory()->createItem(type, keyword.string(), this));
    AxReaderWriter* const member = made.get();
    if (member)
    {
        own().created.push_back(std::move(made));
    }
    return member;
}

std::size_t AxReaderWriterRegistry::size() const
{
    return table().slots.size() + (myOwn ? myOwn->entries.size() : 0);
}

int AxReaderWriterRegistry::count() const
{
    std::size_t contents = 0;
    if (myOwn)
    {
        contents = static_cast<std::size_t>(std::count_if(myOwn->entries.begin(), myOwn->entries.end(),
                                                          [](AxRegistryEntry const& entry) { return entry.content; }));
    }
    return static_cast<int>(size() - contents);
}

int AxReaderWriterRegistry::comparedCount() const
{
    std::size_t passedOver = 0;
    if (myOwn)
    {
        passedOver =
            static_cast<std::size_t>(std::count_if(myOwn->entries.begin(), myOwn->entries.end(),
                                                   [](AxRegistryEntry const& entry) { return !entry.compared; }));
    }
    return static_cast<int>(size() - passedOver);
}

AxRegistryEntry AxReaderWriterRegistry::entry(std::size_t index) const
{
    AxRegistryTable const& shared = table();
    if (index < shared.slots.size())
    {
        return entryOf(*shared.slots[index].shape);
    }
    index -= shared.slots.size();
    return myOwn && index < myOwn->entries.size() ? myOwn->entries[index] : AxRegistryEntry{};
}

void AxReaderWriterRegistry::setCompared(AxReaderWriter const* member, bool compared)
{
    AxRegistryEntry* found = member ? ownEntry(member) : nullptr;
    if (member && !found && lookup(member->name()) == member)
    {
        leaveShape();
        found = ownEntry(member);
    }
    if (found)
    {
        found->compared = compared;
    }
}

AxSymbolString AxReaderWriterRegistry::nameAt(std::uint16_t place) const
{
    if (myShape->place == place)
    {
        return AxSymbolString::fromId(myShape->name); // it was bound just now
    }
    AxRegistryTable const& shared = table();
    if (std::size_t const slot = shared.findPlace(place); slot != AxRegistryTable::none)
    {
        return shared.slots[slot].keyword;
    }
    AxRegistryShape const* shape = myShape; // a later binding superseded it
    while (!shape->isRoot() && shape->place != place)
    {
        shape = shape->parent();
    }
    return AxSymbolString::fromId(shape->name);
}

AxRegistryShape const* AxReaderWriterRegistry::shapeOf(AxReaderWriter const* member) const
{
    for (AxRegistryTable::Slot const& slot : table().slots)
    {
        if (at(slot.distance) == member)
        {
            return slot.shape;
        }
    }
    return nullptr;
}

AxRegistryEntry AxReaderWriterRegistry::entryOf(AxRegistryShape const& shape) const
{
    return {AxSymbolString::fromId(shape.name), at(shape.distance),           false, true,
            &shape.details->description,        shape.details->declaringClass};
}

AxRegistryEntry AxReaderWriterRegistry::entryOf(AxReaderWriter const* member) const
{
    if (AxRegistryShape const* const shape = shapeOf(member))
    {
        return entryOf(*shape);
    }
    AxRegistryEntry const* const entry = ownEntry(member);
    return entry ? *entry : AxRegistryEntry{};
}

AxKeyword const* AxReaderWriterRegistry::description(AxReaderWriter const* member) const
{
    return entryOf(member).description;
}

std::type_info const* AxReaderWriterRegistry::declaringClass(AxReaderWriter const* member) const
{
    return entryOf(member).declaringClass;
}

void AxReaderWriterRegistry::describe(AxReaderWriter const* member, AxKeyword const& description,
                                      std::type_info const& declaringClass)
{
    if (AxRegistryEntry* const entry = ownEntry(member))
    {
        entry->description = &description;
        entry->declaringClass = &declaringClass;
    }
}

/// Assigns the members that stand in the shape, which is that of `other`; answers how many.
std::size_t AxReaderWriterRegistry::assignShared(AxReaderWriterRegistry const& other)
{
    std::vector<AxRegistryTable::Slot> const& slots = table().slots;
    std::uint32_t const stamp = AxPlainValue::nextStamp();
    for (AxRegistryTable::Slot const& slot : slots)
    {
        AxReaderWriter& to = *at(slot.distance);
        AxReaderWriter const& from = *other.at(slot.distance);
        if (stamp == 0 || !AxPlainValue::copy(slot, to, from, stamp)) [[unlikely]]
        {
            AxReaderWriterFactory::copyByType(to, from);
        }
    }
    return slots.size();
}

bool AxReaderWriterRegistry::operator==(AxReaderWriterRegistry const& other) const
{
    AxRegistryTable const& shared = table();
    bool const sameShape =
        myShape == other.myShape && !myOwn && !other.myOwn && AxReaderWriterFactory::comparesByType();
    if (sameShape)
    {
        return std::all_of(shared.slots.begin(), shared.slots.end(),
                           [this, &other](AxRegistryTable::Slot const& slot)
                           { return AxPlainValue::equal(slot, *at(slot.distance), *other.at(slot.distance)); });
    }
    if (comparedCount() != other.comparedCount())
    {
        return false;
    }
    for (std::size_t i = 0; i < size(); ++i)
    {
        AxRegistryEntry const left = entry(i);
        if (!left.compared)
        {
            continue;
        }
        AxReaderWriter const* const right = other.find(left.keyword);
        if (!right || !AxReaderWriter::factory()->compareReaderWriter(left.member, right))
        {
            return false;
        }
    }
    return true;
}
