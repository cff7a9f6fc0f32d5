#pragma once

#include "AxListItem.h"
#include "AxReaderWriter.h"

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

/// One record that is being read: where messages say what they are in, and what of it was met already.
struct AxReadFrame
{
    explicit AxReadFrame(AxReaderWriter& itsRecord) : record(itsRecord), outer(innermost) { innermost = this; }
    AxReadFrame(AxReadFrame const&) = delete;
    AxReadFrame& operator=(AxReadFrame const&) = delete;
    ~AxReadFrame() { innermost = outer; }

    /// Marks the member at `place`; true when it was marked before.
    bool markSeen(std::size_t place)
    {
        std::uint64_t& word = place < few.size() * 64 ? few[place / 64] : wordOfMany(place / 64 - few.size());
        std::uint64_t const bit = std::uint64_t{1} << (place % 64);
        bool const before = (word & bit) != 0;
        word |= bit;
        return before;
    }
    /// The names of the records from the outermost in, joined by "/".
    static std::string path();
    /// The list that is being read, for faults that have no token of their own; nil outside of all.
    static AxlObj const* list();

    /// How many records are open.
    static std::size_t depth();
    /// Says that the list that is being read went beyond a limit.
    static void reportLimit(char const* code, std::string text);
    /// Says that `head` stands where a name should.
    static void reportBadName(AxlObj const* head);
    /// What an expression that begins with a list is read as, which is reported: that list is an item behind an empty
    /// name, as it will be when it was written. In a record it is the second, since there are classes whose first item
    /// is known by its place.
    static AxlObjPtr named(AxlObjPtr const& expression, bool isList);

    /// The elements of a long keyed list as they were when it had changed `changeCount` times.
    struct Index
    {
        std::unordered_map<std::string, AxListItem*> items{};
        std::uint32_t changeCount = 0;
    };
    /// The same of a list that stands in the order of a number.
    struct Order
    {
        std::map<double, AxListItem*> items{};
        std::uint32_t changeCount = 0;
    };

    AxReaderWriter& record;
    AxReadFrame* outer;
    std::size_t next = 0;  ///< the member that the next item is likely to name
    AxSymbolString last{}; ///< the member read last
    std::array<std::uint64_t, 4> few{};
    std::vector<std::uint64_t> many{};
    std::unique_ptr<Index> keyed{};
    std::unique_ptr<Order> ordered{};

    static AxReadFrame* innermost;

private:
    std::uint64_t& wordOfMany(std::size_t index)
    {
        if (many.size() <= index)
        {
            many.resize(index + 1);
        }
        return many[index];
    }
};
