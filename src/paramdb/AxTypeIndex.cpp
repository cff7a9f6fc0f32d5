#include "AxTypeIndex.h"

#include <algorithm>
#include <limits>
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
/// a < b, two fields at a time.
inline bool isBelow(AxObjectType const& a, AxObjectType const& b)
{
    for (std::size_t i = 0; i < AxObjectType::theNumFields; i += 2)
    {
        auto const pair = [i](AxObjectType const& type)
        {
            constexpr std::uint32_t lowest = 0x80000000U;
            auto const ordered = [](std::int32_t field) { return static_cast<std::uint32_t>(field) ^ lowest; };
            return std::uint64_t{ordered(type.fields()[i])} << 32 | ordered(type.fields()[i + 1]);
        };
        if (pair(a) != pair(b))
        {
            return pair(a) < pair(b);
        }
    }
    return false;
}
} // namespace

AxTypeIndex::Found AxTypeIndex::bestMatch(AxObjectType const& type)
{
    arrange();
    if (!isSorted())
    {
        return found(walk(type));
    }
    buildTables();
    if (hasNegativeField(type))
    {
        return bestOfUnusual(type);
    }
    AxTypeHash hash(type);
    if (AxTypeTable::Slot* const slot = myExact.find(type, hash.mixed()))
    {
        return answer(slot->first);
    }
    for (unsigned const shape : myShapes)
    {
        hash.setShape(shape);
        std::uint64_t const mixed = hash.mixed();
        if (myPatterns.mayHold(mixed))
        {
            if (AxTypeTable::Slot* const slot = myPatterns.find(masked(type, shape), mixed))
            {
                return answer(slot->last);
            }
        }
    }
    return {};
}

AxTypeIndex::Found AxTypeIndex::bestOfUnusual(AxObjectType const& type)
{
    if (AxTypeTable::Slot* const slot = tableFor(shapeOf(type)).find(type))
    {
        return answer(slot->first);
    }
    // A field below -1 lets patterns stand above the type that fits them; they come first.
    buildOrder();
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
            best = answer(slot->last);
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
    if (!isSorted())
    {
        AxListItem* const best = walk(type);
        return best != nullptr && typeOf(best) == type ? found(best) : Found();
    }
    if (myList.isEmpty() || greatest() < type)
    {
        return {};
    }
    buildTables();
    AxTypeTable::Slot* const slot = tableFor(shapeOf(type)).find(type);
    return slot != nullptr ? answer(slot->first) : Found();
}

AxListItem* AxTypeIndex::insert(void* data, AxObjectType const& type)
{
    arrange();
    if (!isSorted())
    {
        return insertByWalk(data, type);
    }
    AxListItem* place = nullptr;
    if (!myList.isEmpty() && !(typeOf(myList.last()) < type))
    {
        buildOrder();
        auto const above = myOrder.upper_bound(type);
        if (above == myOrder.end())
        {
            return nullptr;
        }
        place = above->second;
    }
    AxListItem* const item = makeItem(place, data);
    enter(item, type);
    return item;
}

bool AxTypeIndex::insertLater(void* data, AxObjectType const& type)
{
    bool const isInPlace = myUnplaced.empty() && (myList.isEmpty() || greatest() < type);
    if (!isSorted() || isInPlace || myHasOrder)
    {
        return insert(data, type) != nullptr;
    }
    if (greatest() == type)
    {
        return false;
    }
    buildTables();
    enterInTables({nullptr, data}, type);
    myGreatest = std::max(greatest(), type);
    myUnplaced.push_back({type, data});
    return true;
}

void AxTypeIndex::expect(std::size_t count)
{
    if (isSorted())
    {
        buildTables();
        myExact.reserve(myExact.count() + count);
    }
}

AxListItem* AxTypeIndex::makeItem(AxListItem* before, void* data)
{
    AxListItem* const item = myList.insertBefore(before, data);
    if (myItemOf != nullptr)
    {
        myItemOf(data) = item;
    }
    return item;
}

/// What was entered before it had its item.
AxTypeIndex::Found const& AxTypeIndex::answer(Found& found) const
{
    if (found.item == nullptr)
    {
        found.item = myItemOf(found.data);
    }
    return found;
}

void AxTypeIndex::placeAll()
{
    std::vector<Unplaced> unplaced = std::exchange(myUnplaced, {});
    std::stable_sort(unplaced.begin(), unplaced.end(),
                     [](Unplaced const& a, Unplaced const& b) { return isBelow(a.type, b.type); });
    bool const areFew = unplaced.size() < static_cast<std::size_t>(myList.count()) / 8;
    // The items are made in their order, so that a walk over them goes through memory in order, too.
    AxListItem* above = myList.first();
    for (Unplaced const& next : unplaced)
    {
        while (above != nullptr && !isBelow(next.type, typeOf(above)))
        {
            above = above->next();
        }
        makeItem(above, next.data);
    }
    myChangeCount = myList.changeCount();
    if (areFew)
    {
        buildOrder(); // more single ones may follow, each asked for at once
    }
}

void AxTypeIndex::enter(AxListItem* item, AxObjectType const& type)
{
    myChangeCount = myList.changeCount();
    if (myHasOrder)
    {
        // An item behind one of equal type finds its key taken.
        myOrder.emplace_hint(item->next() == nullptr ? myOrder.end() : myOrder.upper_bound(type), type, item);
    }
    if (myHasTables)
    {
        enterInTables(found(item), type);
    }
}

void AxTypeIndex::enterInTables(Found const& found, AxObjectType const& type)
{
    unsigned const shape = shapeOf(type);
    AxTypeTable& table = tableFor(shape);
    std::uint64_t const hash = AxTypeHash(type).mixed();
    if (AxTypeTable::Slot* const slot = table.find(type, hash))
    {
        slot->last = found; // it stands behind those of equal type
        return;
    }
    table.add(type, found, hash);
    countShape(shape, 1);
}

AxListItem* AxTypeIndex::insertByWalk(void* data, AxObjectType const& type)
{
    AxObjectType const* const last = myTypeOf(myList.last()->data());
    AxListItem* place = nullptr;
    if (last == nullptr || !(*last < type))
    {
        for (place = myList.first(); place != nullptr; place = place->next())
        {
            AxObjectType const* const standing = myTypeOf(place->data());
            if (standing != nullptr && type < *standing)
            {
                break;
            }
        }
        if (place == nullptr)
        {
            return nullptr;
        }
    }
    invalidate();
    return makeItem(place, data);
}

void AxTypeIndex::remove(AxListItem* item)
{
    arrange();
    bool const isKept = isSorted() && leave(item);
    myList.remove(item);
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
    myExact.clear();
    myPatterns.clear();
    myShapes.clear();
    myShapeCounts.fill(0);
    myOrder.clear();
    myHasTables = myHasOrder = false;
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

void AxTypeIndex::buildTables()
{
    if (myHasTables)
    {
        return;
    }
    std::size_t patterns = 0;
    for (AxListItem const* item = myList.first(); item != nullptr; item = item->next())
    {
        patterns += shapeOf(typeOf(item)) != 0;
    }
    myExact.reserve(static_cast<std::size_t>(myList.count()) - patterns);
    myPatterns.reserve(patterns);
    bool const hadOrder = myHasOrder;
    myHasOrder = false;
    myHasTables = true;
    for (AxListItem* item = myList.first(); item != nullptr; item = item->next())
    {
        enter(item, typeOf(item));
    }
    myHasOrder = hadOrder;
}

void AxTypeIndex::buildOrder()
{
    if (myHasOrder)
    {
        return;
    }
    myHasOrder = true;
    for (AxListItem* item = myList.first(); item != nullptr; item = item->next())
    {
        myOrder.emplace_hint(myOrder.end(), typeOf(item), item);
    }
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
    if (!isSorted())
    {
        AxListItem* before = item->previous();
        while (before != nullptr && !type.matchPattern(typeOf(before)) &&
               typeOf(before).superType() != AxObjectType::theCatchAllSuperType)
        {
            before = before->previous();
        }
        return before;
    }
    buildTables();
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
    buildOrder();
    auto const end = myOrder.lower_bound(std::min(type, AxObjectType(behindAll)));
    if (end == myOrder.begin())
    {
        return nullptr;
    }
    AxListItem* const before = std::prev(end)->second;
    return typeOf(before).superType() == AxObjectType::theCatchAllSuperType ? before : nullptr;
}
