#include "AxTypeSort.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <new>
#include <optional>

namespace
{
/// Below, counting costs more than comparing.
constexpr std::size_t theFewestToCount = 64;
constexpr std::size_t theNumDigits = 256;

/// Types as numbers in the same order, of as many bits as the fields of all of them vary in.
class TypeKeys
{
public:
    /// None when 64 bits are too few.
    static std::optional<TypeKeys> of(std::vector<AxListItem*> const& items, AxTypeOf typeOf)
    {
        TypeKeys keys;
        keys.myLeast = typeOf(items.front()->data())->fields();
        AxObjectType::Fields greatest = keys.myLeast;
        for (AxListItem const* const item : items)
        {
            AxObjectType::Fields const& fields = typeOf(item->data())->fields();
            for (std::size_t i = 0; i < fields.size(); ++i)
            {
                keys.myLeast[i] = std::min(keys.myLeast[i], fields[i]);
                greatest[i] = std::max(greatest[i], fields[i]);
            }
        }
        for (std::size_t i = greatest.size(); i-- > 0;)
        {
            keys.myShifts[i] = keys.myNumBits;
            keys.myNumBits += static_cast<unsigned>(std::bit_width(above(keys.myLeast[i], greatest[i])));
            if (keys.myNumBits > 64)
            {
                return std::nullopt;
            }
        }
        return keys;
    }

    unsigned numBits() const { return myNumBits; }
    std::uint64_t operator()(AxObjectType const& type) const
    {
        std::uint64_t key = 0;
        for (std::size_t i = 0; i < myLeast.size(); ++i)
        {
            key |= above(myLeast[i], type.fields()[i]) << (myShifts[i] & 63);
        }
        return key;
    }

private:
    static std::uint64_t above(std::int32_t least, std::int32_t field)
    {
        return static_cast<std::uint64_t>(std::int64_t{field} - least);
    }

    AxObjectType::Fields myLeast{};
    std::array<unsigned, AxObjectType::theNumFields> myShifts{};
    unsigned myNumBits = 0;
};

struct Keyed
{
    std::uint64_t key;
    AxListItem* item;
};

/// By one byte of the key after the other, the lowest first.
void sortByKey(std::vector<Keyed>& items, unsigned numBits)
{
    std::vector<Keyed> sorted(items.size());
    for (unsigned shift = 0; shift < numBits; shift += 8)
    {
        auto const digitOf = [shift](Keyed const& keyed) { return keyed.key >> shift & (theNumDigits - 1); };
        std::array<std::size_t, theNumDigits> places{};
        for (Keyed const& keyed : items)
        {
            ++places[digitOf(keyed)];
        }
        std::size_t numBelow = 0;
        for (std::size_t& place : places)
        {
            std::size_t const count = place;
            place = numBelow;
            numBelow += count;
        }
        for (Keyed const& keyed : items)
        {
            sorted[places[digitOf(keyed)]++] = keyed;
        }
        items.swap(sorted);
    }
}

bool sortByCounting(std::vector<AxListItem*>& items, AxTypeOf typeOf)
try
{
    std::optional<TypeKeys> const keyOf = TypeKeys::of(items, typeOf);
    if (!keyOf)
    {
        return false;
    }
    std::vector<Keyed> keyed;
    keyed.reserve(items.size());
    for (AxListItem* const item : items)
    {
        keyed.push_back({(*keyOf)(*typeOf(item->data())), item});
    }
    sortByKey(keyed, keyOf->numBits());
    std::transform(keyed.begin(), keyed.end(), items.begin(), [](Keyed const& next) { return next.item; });
    return true;
}
catch (std::bad_alloc const&)
{
    return false;
}
} // namespace

void axSortByType(std::vector<AxListItem*>& items, AxTypeOf typeOf)
{
    if (items.size() >= theFewestToCount && sortByCounting(items, typeOf))
    {
        return;
    }
    std::stable_sort(items.begin(), items.end(),
                     [typeOf](AxListItem const* a, AxListItem const* b)
                     { return *typeOf(a->data()) < *typeOf(b->data()); });
}
