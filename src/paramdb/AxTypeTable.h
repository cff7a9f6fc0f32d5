#pragma once

#include "AxObjectType.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

class AxListItem;

/// The eight fields of an object type weighed for hashing: a sum, so that a field is replaced by a wildcard with one
/// subtraction. Looks at the type as long as it lives.
class AxTypeHash
{
public:
    explicit AxTypeHash(AxObjectType const& type) : myFields(type.fields())
    {
        for (std::size_t i = 0; i < theWeights.size(); ++i)
        {
            mySum += bitsOf(myFields[i]) * theWeights[i];
        }
    }
    /// Replaces the fields that the shape leaves open, or puts those back that the former shape left open. Bit 7 of a
    /// shape is the super type, bit 0 the last field.
    void setShape(unsigned shape)
    {
        for (unsigned changed = shape ^ myShape; changed != 0; changed &= changed - 1)
        {
            unsigned const bit = static_cast<unsigned>(std::countr_zero(changed));
            std::uint64_t const change = (bitsOf(myFields[7 - bit]) + 1) * theWeights[7 - bit];
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

    static std::uint64_t bitsOf(std::int32_t field) { return static_cast<std::uint64_t>(std::int64_t{field}); }

    AxObjectType::Fields const& myFields;
    std::uint64_t mySum = 0;
    unsigned myShape = 0;
};

/// Object types to the first and the last of the list items of that type: open addressing in groups of eight slots. A
/// byte of the hash for each slot tells at once which slots of a group to look at; a slot is one line of memory and
/// holds the whole answer, since among many entries each further line costs more than all the rest.
class AxTypeTable
{
public:
    struct Found
    {
        AxListItem* item;
        void* data; // of the item
    };
    struct alignas(64) Slot
    {
        AxObjectType::Fields fields;
        Found first;
        Found last;
    };

    std::size_t count() const { return myCount; }

    Slot* find(AxObjectType const& type, std::uint64_t hash)
    {
        if (myCount == 0)
        {
            return nullptr;
        }
        for (std::size_t group = hash >> myShift;; group = (group + 1) & myMask)
        {
            std::uint64_t const tags = myGroups[group].tags;
            for (std::uint64_t same = zeroBytes(tags ^ theOnes * tagOf(hash)); same != 0; same &= same - 1)
            {
                Slot& slot = mySlots[group * theGroupSize + byteOf(same)];
                if (isSame(slot.fields, type.fields())) [[likely]]
                {
                    return &slot;
                }
            }
            if (zeroBytes(tags) != 0) [[likely]] // a free slot: nothing was pushed on to the next group
            {
                return nullptr;
            }
        }
    }
    Slot* find(AxObjectType const& type) { return find(type, AxTypeHash(type).mixed()); }

    /// False when no entry can have this hash; true says nothing. Not for an empty table.
    bool mayHold(std::uint64_t hash) const { return (myGroups[hash >> myShift].filter >> (hash & 63) & 1) != 0; }

    // Nothing is changed when one of these throws std::bad_alloc.
    void reserve(std::size_t count);
    /// `type` is not there yet; `hash` is its.
    void add(AxObjectType const& type, Found const& found, std::uint64_t hash);
    /// `slot` is of this table; other slots stay where they are.
    void erase(Slot* slot);
    void clear();

private:
    static constexpr std::size_t theGroupSize = 8;
    static constexpr std::uint64_t theOnes = 0x0101010101010101U;
    static constexpr std::uint64_t theHighBits = theOnes << 7;
    static constexpr std::uint64_t theFree = 0;
    static constexpr std::uint64_t theErased = 1; // probing goes on behind it

    static bool isSame(AxObjectType::Fields const& a, AxObjectType::Fields const& b)
    {
        std::array<std::uint64_t, 4> left;
        std::array<std::uint64_t, 4> right;
        std::memcpy(left.data(), a.data(), sizeof left);
        std::memcpy(right.data(), b.data(), sizeof right);
        return ((left[0] ^ right[0]) | (left[1] ^ right[1]) | (left[2] ^ right[2]) | (left[3] ^ right[3])) == 0;
    }
    /// The highest bit of each byte that is 0; of others only above such a byte.
    static std::uint64_t zeroBytes(std::uint64_t word) { return (word - theOnes) & ~word & theHighBits; }
    /// Which of the eight bytes holds the lowest bit that is set.
    static std::size_t byteOf(std::uint64_t bits) { return static_cast<std::size_t>(std::countr_zero(bits)) / 8; }
    /// Neither free nor erased.
    static std::uint64_t tagOf(std::uint64_t hash) { return (hash >> 16 | 0x80U) & 0xFFU; }
    /// What is looked at before a slot is.
    struct Group
    {
        void setTag(std::size_t slot, std::uint64_t tag)
        {
            tags = (tags & ~(std::uint64_t{0xFF} << slot * 8)) | tag << slot * 8;
        }
        std::uint64_t tags = 0;   // a byte for each slot
        std::uint64_t filter = 0; // a bit for each entry that belongs here or did, also for those pushed on
    };
    std::size_t numSlots() const { return myGroups.size() * theGroupSize; }
    void resize(unsigned groupBits);
    void place(Slot const& slot, std::uint64_t hash);

    std::unique_ptr<Slot[]> mySlots; // memory is touched as slots are taken
    std::vector<Group> myGroups;
    std::size_t myCount = 0;
    std::size_t myNumErased = 0;
    std::size_t myMask = 0; // of groups
    unsigned myShift = 63;
};
