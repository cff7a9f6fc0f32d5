#pragma once

#include "AxObjectType.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <vector>

class AxListItem;

/// The eight fields of an object type weighed for hashing: a sum, so that a field is replaced by a wildcard with one
/// subtraction.
class AxTypeHash
{
public:
    explicit AxTypeHash(AxObjectType const& type)
    {
        for (std::size_t i = 0; i < theWeights.size(); ++i)
        {
            std::uint64_t const weighed = static_cast<std::uint64_t>(std::int64_t{type.fields()[i]}) * theWeights[i];
            mySum += weighed;
            myToWildcard[i] = weighed + theWeights[i];
        }
    }
    /// Replaces the fields that the shape leaves open, or puts those back that the former shape left open. Bit 7 of a
    /// shape is the super type, bit 0 the last field.
    void setShape(unsigned shape)
    {
        for (unsigned changed = shape ^ myShape; changed != 0; changed &= changed - 1)
        {
            unsigned const bit = static_cast<unsigned>(std::countr_zero(changed));
            std::uint64_t const change = myToWildcard[7 - bit];
            mySum = (shape >> bit & 1) != 0 ? mySum - change : mySum + change;
        }
        myShape = shape;
    }
    std::uint64_t mixed() const
    {
        std::uint64_t const folded = mySum ^ (mySum >> 32);
        return folded * 0x9FB21C651E98DF25U;
    }

private:
    static constexpr std::array<std::uint64_t, AxObjectType::theNumFields> theWeights{
        0x9E3779B97F4A7C15U, 0xC2B2AE3D27D4EB4FU, 0x165667B19E3779F9U, 0xD6E8FEB86659FD93U,
        0xA0761D6478BD642FU, 0xE7037ED1A0B428DBU, 0x8EBC6AF09C88C6E3U, 0x589965CC75374CC3U};

    std::uint64_t mySum = 0;
    std::array<std::uint64_t, AxObjectType::theNumFields> myToWildcard{};
    unsigned myShape = 0;
};

/// Object types to the first and the last of the list items of that type: open addressing, linear probing.
class AxTypeTable
{
public:
    struct Slot
    {
        AxObjectType type;
        AxListItem* first = nullptr;
        AxListItem* last = nullptr;
    };

    std::size_t count() const { return myCount; }

    Slot* find(AxObjectType const& type, std::uint64_t hash)
    {
        if (myCount == 0)
        {
            return nullptr;
        }
        for (std::size_t at = hash >> myShift;; at = (at + 1) & myMask)
        {
            Slot& slot = mySlots[at];
            if (slot.first == nullptr)
            {
                return nullptr;
            }
            if (isSame(slot.type, type))
            {
                return &slot;
            }
        }
    }
    Slot* find(AxObjectType const& type) { return find(type, AxTypeHash(type).mixed()); }

    /// False when no entry can have this hash; true says nothing.
    bool mayHold(std::uint64_t hash) const { return (myFilter[hash >> 6 & myFilterMask] >> (hash & 63) & 1) != 0; }

    void reserve(std::size_t count);
    /// `type` is not there yet.
    void add(AxObjectType const& type, AxListItem* item);
    /// `slot` is of this table; other slots may move.
    void erase(Slot* slot);
    void clear();

private:
    static bool isSame(AxObjectType const& a, AxObjectType const& b)
    {
        std::array<std::uint64_t, 4> left;
        std::array<std::uint64_t, 4> right;
        std::memcpy(left.data(), a.fields().data(), sizeof left);
        std::memcpy(right.data(), b.fields().data(), sizeof right);
        return ((left[0] ^ right[0]) | (left[1] ^ right[1]) | (left[2] ^ right[2]) | (left[3] ^ right[3])) == 0;
    }
    void resize(unsigned bits);
    void place(Slot const& slot, std::uint64_t hash);

    std::vector<Slot> mySlots;
    std::vector<std::uint64_t> myFilter{0};
    std::size_t myCount = 0;
    std::size_t myMask = 0;
    std::size_t myFilterMask = 0;
    unsigned myShift = 63;
};
