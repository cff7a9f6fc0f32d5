#include "AxTypeIndex.h"

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

namespace
{
constexpr unsigned bitOf(std::size_t field)
{
    return 1U << (AxObjectType::theNumFields - 1 - field);
}

/// The fields of a type that are wildcards.
unsigned shapeOf(AxObjectType const& type)
{
    unsigned shape = 0;
    for (std::size_t i = 0; i < AxObjectType::theNumFields; ++i)
    {
        shape |= type.fields()[i] == AxObjectType::theWildcard ? bitOf(i) : 0U;
    }
    return shape;
}

AxObjectType masked(AxObjectType const& type, unsigned shape)
{
    AxObjectType::Fields fields = type.fields();
    for (std::size_t i = 0; i < fields.size(); ++i)
    {
        fields[i] = (shape & bitOf(i)) != 0 ? AxObjectType::theWildcard : fields[i];
    }
    return AxObjectType(fields);
}

bool hasNegativeField(AxObjectType const& type)
{
    std::int32_t all = 0;
    for (std::int32_t const field : type.fields())
    {
        all |= field;
    }
    return all < 0;
}
} // namespace

AxTypeIndex::Found AxTypeIndex::bestMatch(AxObjectType const& type)
{
    arrange();
    if (!isSorted() || !hasTables())
    {
        return found(walk(type));
    }
    if (hasNegativeField(type))
    {
        return bestOfUnusual(type);
    }
    AxTypeHash hash(type);
    if (AxTypeTable::Slot* const slot = myExact.find(type, hash.mixed()))
    {
        return slot->first;
    }
    for (unsigned const shape : myShapes)
    {
        hash.setShape(shape);
        std::uint64_t const mixed = hash.mixed();
        if (myPatterns.mayHold(mixed))
        {
            if (AxTypeTable::Slot* const slot = myPatterns.find(masked(type, shape), mixed))
            {
                return slot->last;
            }
        }
    }
    return {};
}

AxTypeIndex::Found AxTypeIndex::bestOfUnusual(AxObjectType const& type)
{
    if (AxTypeTable::Slot* const slot = tableFor(shapeOf(type)).find(type))
    {
        return slot->first;
    }
    // A field below -1 lets patterns stand above the type that fits them; they come first.
    if (!hasOrder())
    {
        return found(walk(type));
    }
    auto const above = myOrder.lower_bound(type);
    AxListItem* best = nullptr;
    for (AxListItem* item = above != myOrder.end() ? above->second : nullptr;
         item != nullptr && type.matchPattern(typeOf(item)); item = item->next())
    {
        best = item;
    }
    return best != nullptr ? found(best) : greatestBelow(type);
}

AxTypeIndex::Found AxTypeIndex::greatestBelow(AxObjectType const& type)
{
    unsigned const own = shapeOf(type);
    Found best{};
    auto const consider = [&](unsigned shape)
    {
        // A wildcard of the asked type fits nothing but a wildcard.
        if ((shape & own) != own)
        {
            return;
        }
        AxObjectType const key = masked(type, shape);
        AxTypeTable::Slot* const slot = key < type ? tableFor(shape).find(key) : nullptr;
        if (slot != nullptr && (best.item == nullptr || typeOf(best.item) < key))
        {
            best = slot->last;
        }
    };
    consider(0);
    for (unsigned const shape : myShapes)
    {
        consider(shape);
    }
    return best;
}

AxListItem* AxTypeIndex::walk(AxObjectType const& type) const
{
    AxListItem* best = nullptr;
    for (AxListItem* item = myList.first(); item != nullptr; item = item->next())
    {
        AxObjectType const* const standing = myTypeOf(item->data());
        if (standing == nullptr)
        {
            continue;
        }
        bool const fits = type.matchPattern(*standing);
        if (!(*standing < type))
        {
            if (*standing == type)
            {
                return item;
            }
            if (!fits)
            {
                break;
            }
        }
        best = fits ? item : best;
    }
    return best;
}

AxTypeIndex::Found AxTypeIndex::firstOf(AxObjectType const& type)
{
    if (!isSorted() || !hasTables())
    {
        arrange();
        AxListItem* const best = walk(type);
        return best != nullptr && typeOf(best) == type ? found(best) : Found();
    }
    if (count() == 0 || greatest() < type)
    {
        return {};
    }
    AxTypeTable::Slot* const slot = tableFor(shapeOf(type)).find(type);
    return slot != nullptr ? slot->first : Found();
}

bool AxTypeIndex::insert(void* data, AxObjectType const& type)
{
    Place const place = placeOf(type);
    if (place.isThere)
    {
        enter(myList.insertBefore(place.before, data), type);
    }
    return place.isThere;
}

bool AxTypeIndex::link(AxListItem& item, AxObjectType const& type)
{
    Place const place = placeOf(type);
    if (place.isThere)
    {
        myList.link(item, place.before);
        enter(&item, type);
    }
    return place.isThere;
}

bool AxTypeIndex::linkLater(AxListItem& item, AxObjectType const& type)
{
    bool const isInPlace = myUnplaced.empty() && (myList.isEmpty() || greatest() < type);
    if (!isSorted() || isInPlace || myHasOrder)
    {
        return link(item, type);
    }
    if (greatest() == type)
    {
        return false;
    }
    try
    {
        myUnplaced.push_back(&item);
    }
    catch (std::bad_alloc const&)
    {
        return link(item, type);
    }
    if (!hasTables() || !enterInTables(&item, type))
    {
        myUnplaced.pop_back();
        return link(item, type);
    }
    myGreatest = myUnplaced.size() == 1 ? std::max(typeOf(myList.last()), type) : std::max(myGreatest, type);
    return true;
}

void AxTypeIndex::expect(std::size_t count)
{
    try
    {
        if (isSorted() && hasTables())
        {
            myExact.reserve(myExact.count() + count);
        }
    }
    catch (std::bad_alloc const&)
    {
        // They will find room one by one, or not.
    }
}

AxTypeIndex::Place AxTypeIndex::placeOf(AxObjectType const& type)
{
    arrange();
    isSorted(); // lest a change behind the index goes unseen
    AxObjectType const* const last = myList.isEmpty() ? nullptr : myTypeOf(myList.last()->data());
    if (myList.isEmpty() || (last != nullptr && *last < type))
    {
        return {true, nullptr};
    }
    AxListItem* const above = firstAbove(type);
    return {above != nullptr, above};
}

AxListItem* AxTypeIndex::firstAbove(AxObjectType const& type)
{
    if (isSorted() && hasOrder())
    {
        auto const above = myOrder.upper_bound(type);
        return above != myOrder.end() ? above->second : nullptr;
    }
    AxListItem* item = myList.first();
    while (item != nullptr && (myTypeOf(item->data()) == nullptr || !(type < typeOf(item))))
    {
        item = item->next();
    }
    return item;
}

void AxTypeIndex::placeAll()
{
    std::vector<AxListItem*> unplaced = std::exchange(myUnplaced, {});
    axSortByType(unplaced, myTypeOf);
    bool const areFew = unplaced.size() < static_cast<std::size_t>(myList.count()) / 8;
    constexpr std::size_t theReach = 8; // how far ahead memory is asked for
    AxListItem* above = myList.first();
    for (std::size_t i = 0; i < unplaced.size(); ++i)
    {
        __builtin_prefetch(unplaced[std::min(i + theReach, unplaced.size() - 1)], 1);
        while (above != nullptr && !(typeOf(unplaced[i]) < typeOf(above)))
        {
            above = above->next();
        }
        myList.link(*unplaced[i], above);
    }
    myChangeCount = myList.changeCount();
    if (areFew)
    {
        hasOrder(); // more single ones may follow, each asked for at once
    }
}

/// Of an item that has its place. What finds no memory for it is forgotten and built anew.
void AxTypeIndex::enter(AxListItem* item, AxObjectType const& type)
{
    if (!myIsKnown || !myIsSorted)
    {
        myIsKnown = false;
        return;
    }
    myChangeCount = myList.changeCount();
    if ((myHasOrder && !enterInOrder(item, type)) || (myHasTables && !enterInTables(item, type)))
    {
        forget();
    }
}

bool AxTypeIndex::enterInOrder(AxListItem* item, AxObjectType const& type)
try
{
    bool const isLast = myOrder.empty() || myOrder.rbegin()->first < type;
    // An item behind one of equal type finds its key taken.
    myOrder.emplace_hint(isLast ? myOrder.end() : myOrder.upper_bound(type), type, item);
    return true;
}
catch (std::bad_alloc const&)
{
    return false;
}

bool AxTypeIndex::enterInTables(AxListItem* item, AxObjectType const& type)
try
{
    unsigned const shape = shapeOf(type);
    AxTypeTable& table = tableFor(shape);
    std::uint64_t const hash = AxTypeHash(type).mixed();
    if (AxTypeTable::Slot* const slot = table.find(type, hash))
    {
        slot->last = found(item); // it stands behind those of equal type
        return true;
    }
    table.add(type, found(item), hash);
    countShape(shape, 1);
    return true;
}
catch (std::bad_alloc const&)
{
    return false;
}

void AxTypeIndex::remove(AxListItem* item)
{
    arrange();
    bool const isKept = isSorted() && leave(item);
    myList.remove(item);
    myChangeCount = myList.changeCount();
    myIsKnown = isKept;
}

void AxTypeIndex::unlink(AxListItem& item)
{
    arrange();
    bool const isKept = isSorted() && leave(&item);
    myList.unlink(item);
    myChangeCount = myList.changeCount();
    myIsKnown = isKept;
}

/// False when the index does not know the item's type, because it was changed without a word.
bool AxTypeIndex::leave(AxListItem const* item)
{
    AxObjectType const& type = typeOf(item);
    AxListItem* const previous = item->previous();
    AxListItem* const next = item->next();
    bool const isFirst = previous == nullptr || !(typeOf(previous) == type);
    bool const isLast = next == nullptr || !(typeOf(next) == type);
    if (myHasOrder && isFirst)
    {
        auto const entry = myOrder.find(type);
        if (entry == myOrder.end())
        {
            return false;
        }
        if (isLast)
        {
            myOrder.erase(entry);
        }
        else
        {
            entry->second = next;
        }
    }
    if (myHasTables)
    {
        unsigned const shape = shapeOf(type);
        AxTypeTable::Slot* const slot = tableFor(shape).find(type);
        if (slot == nullptr)
        {
            return false;
        }
        if (isFirst && isLast)
        {
            tableFor(shape).erase(slot);
            countShape(shape, -1);
        }
        else
        {
            slot->first = isFirst ? found(next) : slot->first;
            slot->last = isLast ? found(previous) : slot->last;
        }
    }
    return true;
}

void AxTypeIndex::start()
{
    myUnplaced.clear();
    forget();
    myChangeCount = myList.changeCount();
    myIsKnown = myIsSorted = true;
}

void AxTypeIndex::forget()
{
    forgetTables();
    myOrder.clear();
    myHasOrder = false;
}

void AxTypeIndex::forgetTables()
{
    myExact.clear();
    myPatterns.clear();
    myShapes.clear();
    myShapeCounts.fill(0);
    myHasTables = false;
}

bool AxTypeIndex::isSorted()
{
    if (!myIsKnown || myChangeCount != myList.changeCount())
    {
        arrange();
        forget();
        myIsSorted = scanIsSorted();
        myIsKnown = true;
        myChangeCount = myList.changeCount();
    }
    return myIsSorted;
}

bool AxTypeIndex::scanIsSorted() const
{
    AxObjectType const* before = nullptr;
    for (AxListItem const* item = myList.first(); item != nullptr; item = item->next())
    {
        AxObjectType const* const type = myTypeOf(item->data());
        if (type == nullptr || (before != nullptr && *type < *before))
        {
            return false;
        }
        before = type;
    }
    return true;
}

bool AxTypeIndex::buildTables()
try
{
    std::size_t patterns = 0;
    for (AxListItem const* item = myList.first(); item != nullptr; item = item->next())
    {
        patterns += shapeOf(typeOf(item)) != 0;
    }
    myExact.reserve(static_cast<std::size_t>(myList.count()) - patterns);
    myPatterns.reserve(patterns);
    myShapes.reserve(myShapeCounts.size());
    myHasTables = true;
    for (AxListItem* item = myList.first(); item != nullptr && myHasTables; item = item->next())
    {
        if (!enterInTables(item, typeOf(item)))
        {
            forgetTables();
        }
    }
    return myHasTables;
}
catch (std::bad_alloc const&)
{
    forgetTables();
    return false;
}

bool AxTypeIndex::buildOrder()
{
    myHasOrder = true;
    for (AxListItem* item = myList.first(); item != nullptr && myHasOrder; item = item->next())
    {
        if (!enterInOrder(item, typeOf(item)))
        {
            myOrder.clear();
            myHasOrder = false;
        }
    }
    return myHasOrder;
}

void AxTypeIndex::countShape(unsigned shape, int change)
{
    if (shape == 0)
    {
        return;
    }
    std::uint32_t& count = myShapeCounts[shape];
    count += static_cast<std::uint32_t>(change);
    auto const place = std::lower_bound(myShapes.begin(), myShapes.end(), shape);
    if (change > 0 && count == 1)
    {
        myShapes.insert(place, static_cast<std::uint8_t>(shape));
    }
    else if (count == 0)
    {
        myShapes.erase(place);
    }
}

AxListItem* AxTypeIndex::ancestorOf(AxListItem const* item)
{
    arrange();
    AxObjectType const& type = typeOf(item);
    if (!isSorted() || !hasTables() || !hasOrder())
    {
        AxListItem* before = item->previous();
        while (before != nullptr && !type.matchPattern(typeOf(before)) &&
               typeOf(before).superType() != AxObjectType::theCatchAllSuperType)
        {
            before = before->previous();
        }
        return before;
    }
    AxListItem* const fitting = greatestBelow(type).item;
    AxListItem* const catchAll = lastCatchAllBefore(type);
    if (fitting == nullptr || catchAll == nullptr)
    {
        return fitting != nullptr ? fitting : catchAll;
    }
    return typeOf(fitting) < typeOf(catchAll) ? catchAll : fitting;
}

AxListItem* AxTypeIndex::lastCatchAllBefore(AxObjectType const& type)
{
    AxObjectType::Fields behindAll;
    behindAll.fill(std::numeric_limits<std::int32_t>::min());
    behindAll[0] = AxObjectType::theCatchAllSuperType + 1;
    auto const end = myOrder.lower_bound(std::min(type, AxObjectType(behindAll)));
    if (end == myOrder.begin())
    {
        return nullptr;
    }
    AxListItem* const before = std::prev(end)->second;
    return typeOf(before).superType() == AxObjectType::theCatchAllSuperType ? before : nullptr;
}
