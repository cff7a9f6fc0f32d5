#include "AxReaderWriterRegistry.h"

#include "AxPlainValue.h"
#include "AxReaderWriterFactory.h"
#include "AxRegistryShape.h"

#include <algorithm>
#include <cstring>

namespace
{
AxRegistryShape& rootShape()
{
    static auto* const root = new AxRegistryShape; // shapes outlive every object
    return *root;
}

std::size_t hashOf(AxSymbolString keyword)
{
    return (reinterpret_cast<std::uintptr_t>(keyword.id()) >> 4) * 0x9E3779B97F4A7C15ULL >> 32;
}

AxRegistryTable const& emptyTable()
{
    static AxRegistryTable const table(nullptr);
    return table;
}
} // namespace

AxRegistryTable::AxRegistryTable(AxRegistryShape const* last)
{
    for (AxRegistryShape const* shape = last; shape && shape->parent; shape = shape->parent)
    {
        // A keyword that is bound again supersedes the earlier binding.
        bool const superseded = !shape->keyword.isNull() &&
                                std::any_of(slots.begin(), slots.end(),
                                            [shape](Slot const& later) { return later.keyword == shape->keyword; });
        if (!superseded)
        {
            slots.push_back({shape->keyword, shape->distance, shape});
        }
    }
    std::reverse(slots.begin(), slots.end());
    std::size_t size = 4;
    while (size < slots.size() * 2)
    {
        size *= 2;
    }
    myMask = size - 1;
    myBuckets.assign(size, 0);
    for (std::size_t i = 0; i < slots.size(); ++i)
    {
        std::size_t bucket = hashOf(slots[i].keyword) & myMask;
        while (myBuckets[bucket] != 0)
        {
            bucket = (bucket + 1) & myMask;
        }
        myBuckets[bucket] = static_cast<std::uint16_t>(i + 1);
    }
}

std::size_t AxRegistryTable::find(AxSymbolString keyword) const
{
    for (std::size_t bucket = hashOf(keyword) & myMask; myBuckets[bucket] != 0; bucket = (bucket + 1) & myMask)
    {
        std::size_t const slot = myBuckets[bucket] - 1U;
        if (slots[slot].keyword == keyword)
        {
            return slot;
        }
    }
    return none;
}

AxReaderWriterRegistry::AxReaderWriterRegistry() = default;

AxReaderWriterRegistry::AxReaderWriterRegistry(AxReaderWriter* owner) : myOwner(owner) {}

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

AxRegistryTable const& AxReaderWriterRegistry::table() const
{
    if (!myShape || !myShape->parent)
    {
        return emptyTable();
    }
    if (!myShape->table)
    {
        myShape->table = std::make_unique<AxRegistryTable>(myShape);
    }
    return *myShape->table;
}

AxReaderWriterRegistry::Own& AxReaderWriterRegistry::own()
{
    if (!myOwn)
    {
        myOwn = std::make_unique<Own>();
    }
    return *myOwn;
}

AxRegistryShape* AxReaderWriterRegistry::shapeAfter(AxKeyword const& keyword, std::ptrdiff_t distance)
{
    AxRegistryShape& last = myShape ? *myShape : rootShape();
    if (AxRegistryShape* const known = last.child(keyword.text, distance))
    {
        return known;
    }
    AxSymbolString const name(keyword.text);
    for (std::unique_ptr<AxRegistryShape> const& child : last.children)
    {
        if (child->keyword == name && child->distance == distance)
        {
            last.enterChild(keyword.text, child.get());
            return child.get();
        }
    }
    auto made = std::make_unique<AxRegistryShape>();
    made->parent = &last;
    made->keyword = name;
    made->description = keyword;
    made->distance = distance;
    last.children.push_back(std::move(made));
    last.firstChild = last.children.front().get();
    last.enterChild(keyword.text, last.children.back().get());
    return last.children.back().get();
}

void AxReaderWriterRegistry::addEntry(AxSymbolString keyword, AxReaderWriter* member)
{
    if (!member)
    {
        return;
    }
    if (!keyword.isNull())
    {
        if (AxReaderWriter* older = lookup(keyword))
        {
            removeEntry(older);
        }
    }
    member->rest().parent = this;
    own().entries.push_back({keyword, member});
}

void AxReaderWriterRegistry::addContentEntry(AxSymbolString keyword, AxReaderWriter* member)
{
    if (member)
    {
        removeEntry(member);
        member->rest().parent = this;
        own().entries.push_back({keyword, member, true, false});
    }
}

void AxReaderWriterRegistry::leaveShape()
{
    std::vector<AxRegistryEntry> entries;
    for (AxRegistryTable::Slot const& slot : table().slots)
    {
        entries.push_back({slot.keyword, at(slot.distance)});
    }
    Own& mine = own();
    mine.entries.insert(mine.entries.begin(), entries.begin(), entries.end());
    myShape = nullptr;
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
    for (std::size_t i = 0; i < size(); ++i)
    {
        AxRegistryEntry const candidate = entry(i);
        if (!candidate.content && candidate.member->hasAlias(alias))
        {
            return candidate.member;
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
        return {shared.slots[index].keyword, at(shared.slots[index].distance)};
    }
    index -= shared.slots.size();
    return myOwn && index < myOwn->entries.size() ? myOwn->entries[index] : AxRegistryEntry{};
}

void AxReaderWriterRegistry::setCompared(AxReaderWriter const* member, bool compared)
{
    AxRegistryEntry* found = ownEntry(member);
    if (!found && lookup(member->name()) == member)
    {
        leaveShape();
        found = ownEntry(member);
    }
    if (found)
    {
        found->compared = compared;
    }
}

AxKeyword const* AxReaderWriterRegistry::description(AxReaderWriter const* member) const
{
    for (AxRegistryTable::Slot const& slot : table().slots)
    {
        if (at(slot.distance) == member)
        {
            return &slot.shape->description;
        }
    }
    return nullptr;
}

bool AxReaderWriterRegistry::operator==(AxReaderWriterRegistry const& other) const
{
    AxRegistryTable const& shared = table();
    bool const sameShape = myShape == other.myShape && !myOwn && !other.myOwn;
    if (sameShape)
    {
        return std::all_of(shared.slots.begin(), shared.slots.end(),
                           [this, &other](AxRegistryTable::Slot const& slot)
                           {
                               AxReaderWriter const& left = *at(slot.distance);
                               AxReaderWriter const& right = *other.at(slot.distance);
                               AxTypeInfo::Reading const reading = slot.infoOf(left).reading;
                               return AxPlainValue::isPlain(reading) ? AxPlainValue::equal(reading, left, right)
                                                                     : AxReaderWriterFactory::equalByType(left, right);
                           });
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
