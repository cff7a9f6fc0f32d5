#pragma once

#include "AxKeyword.h"
#include "AxReaderWriterFactory.h"
#include "AxSymbolString.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <typeinfo>
#include <vector>

/// One member that the objects of a class bind, after those bound before it. Shapes stand in runs: what an object under
/// construction binds next mostly stands right behind what it bound last, and before what leaves stands what leaves
/// next. Classes share what they inherit. Shapes live as long as the process.
struct AxRegistryShape
{
    struct Details;

    char const* text = nullptr; ///< of the keyword, known by its address; null behind the last shape of a run
    /// The owner's table of virtual functions while the member was bound: that of the class that declares the member,
    /// so that members of two classes stay apart even if keyword and place are the same.
    void const* functions = nullptr;
    std::uint32_t distance = 0; ///< of the member from its owner
    std::uint16_t place = 0;    ///< the same in units of eight bytes; 0 for the root
    bool leadsRun = false;      ///< its parent stands in another run

    void const* name = nullptr; ///< of the keyword
    Details* details = nullptr;

    static constexpr std::size_t theUnit = 8;

    /// The shape of an object without members; nothing stands behind it in its run.
    static AxRegistryShape* root() { return theRoot; }

    bool isRoot() const { return place == 0; }
    /// Whether this is what `owner` binds when it binds `keyword` at this distance.
    bool isFor(AxReaderWriter const& owner, AxKeyword const& keyword, std::size_t itsDistance) const
    {
        return text == keyword.text && distance == itsDistance &&
               functions == AxReaderWriterFactory::functionsOf(owner);
    }
    inline AxRegistryShape* parent();
    AxRegistryShape const* parent() const { return const_cast<AxRegistryShape*>(this)->parent(); }
    /// Of this shape and its parents; made at the first call.
    AxRegistryTable const& table() { return myTable ? *myTable : makeTable(); }

    /// What is bound next when that is `keyword` at `itsPlace` of `owner`, which is under construction.
    AxRegistryShape* child(AxReaderWriter const& owner, AxKeyword const& keyword, std::uint16_t itsPlace);

private:
    constexpr AxRegistryShape() = default;
    AxRegistryTable const& makeTable();
    AxRegistryShape* addChild(AxReaderWriter const& owner, AxKeyword const& keyword, std::uint16_t itsPlace);

    AxRegistryTable const* myTable = nullptr;
    static AxRegistryShape theRoot[2];
    static AxRegistryShape* theLatest; // child of the root that was asked for last: objects of a class come in rows
};

/// The members of a shape and its parents in binding order, each keyword once, with an index by keyword.
struct AxRegistryTable
{
    struct Slot
    {
        Slot(AxSymbolString itsKeyword, AxRegistryShape const& itsShape)
            : keyword(itsKeyword),
              word(itsKeyword.view()),
              shape(&itsShape),
              distance(itsShape.distance),
              isBareWord(itsKeyword.isBareWord())
        {
        }
        AxSymbolString keyword;
        std::string_view word; ///< the text of the keyword
        AxRegistryShape const* shape;
        std::uint32_t distance;
        bool isBareWord;
        mutable void const* functions = nullptr; ///< table of virtual functions that `reading` was found for
        mutable AxTypeInfo::Reading reading = AxTypeInfo::Reading::Cells;

        /// How the member that stands in this slot of some object is read; members of one class share the answer.
        AxTypeInfo::Reading readingOf(AxReaderWriter const& member) const
        {
            if (void const* const its = AxReaderWriterFactory::functionsOf(member); functions != its)
            {
                reading = AxReaderWriterFactory::typeInfo(member).reading;
                functions = its;
            }
            return reading;
        }
    };

    explicit AxRegistryTable(AxRegistryShape const& last);
    /// The place of `keyword`, or `none`.
    std::size_t find(AxSymbolString keyword) const;
    /// That of the member bound at this place of the object, or `none`.
    std::size_t findPlace(std::uint16_t place) const
    {
        return place < myPlaces.size() ? myPlaces[place] - std::size_t{1} : none;
    }

    static constexpr std::size_t none = static_cast<std::size_t>(-1);
    std::vector<Slot> slots;
    /// Of an object that is nothing but a record and, in a row behind it, the plain values of the table; 0 when members
    /// are of other kinds or do not stand so.
    std::size_t plainSize(AxReaderWriter const& owner) const
    {
        return myPlainSize != none ? myPlainSize : findPlainSize(owner);
    }

private:
    std::vector<std::uint16_t> myBuckets; // slot + 1, 0 for free
    std::size_t myMask = 0;
    std::vector<std::uint16_t> myPlaces; // slot + 1, 0 for none
    mutable std::size_t myPlainSize = none;

    std::size_t findPlainSize(AxReaderWriter const& owner) const;
};

/// What binding and leaving need seldom.
struct AxRegistryShape::Details
{
    struct Known
    {
        char const* text = nullptr;
        AxRegistryShape* shape = nullptr;
    };

    unsigned char initial[32] = {};
    std::size_t initialSize = 0;
    AxRegistryShape* parent = nullptr;
    AxRegistryShape const* runEnd = nullptr;
    std::type_info const* declaringClass = nullptr;
    AxKeyword description{};
    std::vector<AxRegistryShape*> children{};
    std::vector<Known> known{}; ///< children by the addresses of keywords: a hash table, at most half full
    std::size_t knownCount = 0;

    bool isInitial(std::uint64_t value) const
    {
        return initialSize == sizeof value && std::memcmp(initial, &value, sizeof value) == 0;
    }
    AxRegistryShape* find(char const* keyword, std::uint16_t itsPlace, void const* itsFunctions) const;
    void enter(char const* keyword, AxRegistryShape* shape);
};

inline AxRegistryShape* AxRegistryShape::parent()
{
    return leadsRun ? details->parent : this - 1;
}

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
    double time = 0.0; ///< by the host's clock, of the stamp `timed`
    std::uint32_t timed = 0;
};

inline AxReaderWriter* AxReaderWriterRegistry::at(std::size_t distance) const
{
    return reinterpret_cast<AxReaderWriter*>(reinterpret_cast<char*>(myOwner) + distance);
}

inline AxRegistryTable const& AxReaderWriterRegistry::table() const
{
    return myShape->table();
}

/// Members leave in the reverse order of their binding, one for each member of an object that is destroyed. False, and
/// nothing done, where that takes more than a step.
inline bool AxReaderWriterRegistry::leave(AxReaderWriter const& member)
{
    if (myShape->place != member.myPlace || myShape->leadsRun) [[unlikely]]
    {
        return false;
    }
    --myShape;
    return true;
}

inline void AxReaderWriterRegistry::bindTo(AxRegistryShape& shape, AxReaderWriter& member)
{
    myShape = &shape;
    member.myPlace = shape.place;
}
