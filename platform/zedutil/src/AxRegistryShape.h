#pragma once

#include "AxKeyword.h"
#include "AxReaderWriterFactory.h"
#include "AxSymbolString.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <vector>

/// One member bound at a fixed distance from its owner, after the members of `parent`. Objects that bind the same
/// keywords at the same distances share the chain. Shapes live as long as the process.
struct AxRegistryShape
{
    AxRegistryShape* parent = nullptr;
    AxSymbolString keyword;
    AxKeyword description{};
    std::ptrdiff_t distance = 0;
    unsigned char initial[32] = {};
    std::size_t initialSize = 0;
    AxRegistryShape* firstChild = nullptr;
    std::vector<std::unique_ptr<AxRegistryShape>> children;
    std::unique_ptr<AxRegistryTable> table;

    /// The child for a keyword's text, known by its address, and a distance; null when it was not entered yet.
    AxRegistryShape* child(char const* text, std::ptrdiff_t childDistance) const
    {
        if (myPlaces.empty())
        {
            return nullptr;
        }
        for (std::size_t place = placeOf(text, childDistance);; place = (place + 1) & (myPlaces.size() - 1))
        {
            Place const& entry = myPlaces[place];
            if (!entry.shape || (entry.text == text && entry.shape->distance == childDistance))
            {
                return entry.shape;
            }
        }
    }
    void enterChild(char const* text, AxRegistryShape* shape)
    {
        if (2 * (myEntered + 1) > myPlaces.size())
        {
            std::vector<Place> const old = std::move(myPlaces);
            myPlaces.assign(old.empty() ? 4 : old.size() * 2, Place{});
            myEntered = 0;
            for (Place const& entry : old)
            {
                if (entry.shape)
                {
                    enterChild(entry.text, entry.shape);
                }
            }
        }
        std::size_t place = placeOf(text, shape->distance);
        while (myPlaces[place].shape)
        {
            place = (place + 1) & (myPlaces.size() - 1);
        }
        myPlaces[place] = {text, shape};
        ++myEntered;
    }

private:
    struct Place
    {
        char const* text = nullptr;
        AxRegistryShape* shape = nullptr;
    };
    std::size_t placeOf(char const* text, std::ptrdiff_t childDistance) const
    {
        std::uint64_t const key = reinterpret_cast<std::uintptr_t>(text) + static_cast<std::uint64_t>(childDistance);
        return (key * 0x9E3779B97F4A7C15U >> 32) & (myPlaces.size() - 1);
    }
    std::vector<Place> myPlaces;
    std::size_t myEntered = 0;
};

/// The members of a shape's chain in binding order, each keyword once, with an index by keyword.
struct AxRegistryTable
{
    struct Slot
    {
        AxSymbolString keyword;
        std::ptrdiff_t distance;
        AxRegistryShape const* shape;
        mutable void const* functions = nullptr; ///< table of virtual functions that `info` was found for
        mutable AxTypeInfo const* info = nullptr;

        /// How the member that stands in this slot of some object is read; members of one class share the answer.
        AxTypeInfo const& infoOf(AxReaderWriter const& member) const
        {
            void const* const its = *reinterpret_cast<void const* const*>(&member);
            if (functions != its)
            {
                info = &AxReaderWriterFactory::typeInfo(member);
                functions = its;
            }
            return *info;
        }
    };

    explicit AxRegistryTable(AxRegistryShape const* last);
    /// The place of `keyword`, or `none`.
    std::size_t find(AxSymbolString keyword) const;

    static constexpr std::size_t none = static_cast<std::size_t>(-1);
    std::vector<Slot> slots;

private:
    std::vector<std::uint16_t> myBuckets; // slot + 1, 0 for free
    std::size_t myMask = 0;
};

struct AxReaderWriterRegistry::Own
{
    std::vector<AxRegistryEntry> entries;
    std::vector<std::unique_ptr<AxReaderWriter>> created;
};

/// What a record of the text that no member could take looks like when it is written back.
struct AxKeptItem
{
    AxSymbolString after; ///< the member it followed, or stands for; empty: none
    std::string text;
    bool replaces = false;   ///< written in place of that member until it gets a value
    std::uint32_t stamp = 0; ///< that member's stamp when the item was refused
    int element = -1;        ///< in a list: how many elements stood before it; else -1
};

struct AxReaderWriter::Rare
{
    std::vector<AxSymbolString> aliases;
    AxSymbolString variableName;
    std::string written; ///< the reference as it stood in the text
    std::unique_ptr<AxReaderWriter> defaultValue;
    std::vector<AxKeptItem> kept;
    std::vector<unsigned char> initial;
    double stamp = 0.0;
};

inline AxReaderWriter* AxReaderWriterRegistry::at(std::ptrdiff_t distance) const
{
    return reinterpret_cast<AxReaderWriter*>(reinterpret_cast<char*>(myOwner) + distance);
}

/// Members leave in the reverse order of their binding, one for each member of an object that is destroyed.
inline void AxReaderWriterRegistry::leave(AxReaderWriter const* member)
{
    if (myShape && myShape->parent && at(myShape->distance) == member)
    {
        myShape = myShape->parent;
        return;
    }
    removeEntry(member);
}

/// One for each member of an object that is made.
inline void AxReaderWriterRegistry::bind(AxReaderWriter& member, AxKeyword const& keyword)
{
    constexpr std::ptrdiff_t farthest = std::numeric_limits<std::uint16_t>::max() * 8;
    std::ptrdiff_t const distance = reinterpret_cast<char*>(&member) - reinterpret_cast<char*>(myOwner);
    if (myOwner && distance > 0 && distance <= farthest && distance % 8 == 0 && (!myOwn || myOwn->entries.empty()))
    {
        AxRegistryShape* next = myShape ? myShape->firstChild : nullptr;
        if (!next || next->description.text != keyword.text || next->distance != distance)
        {
            next = shapeAfter(keyword, distance);
        }
        myShape = next;
        member.myNameOrRest = reinterpret_cast<std::uintptr_t>(next->keyword.id());
        member.myOwnerDistance = static_cast<std::uint16_t>(distance / 8);
        return;
    }
    AxSymbolString const name(keyword.text);
    member.myNameOrRest = reinterpret_cast<std::uintptr_t>(name.id());
    addEntry(name, &member);
}
