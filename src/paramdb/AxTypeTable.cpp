#include "AxTypeTable.h"

#include <algorithm>

namespace
{
constexpr unsigned theFewestBits = 4;
/// Filter bits for each slot: a table is up to three quarters full, so about one probe in ten passes by chance.
constexpr std::size_t theFilterBitsPerSlot = 8;
} // namespace

void AxTypeTable::reserve(std::size_t count)
{
    unsigned const bits = std::max(theFewestBits, static_cast<unsigned>(std::bit_width(count + count / 3)));
    if (mySlots.size() < std::size_t{1} << bits)
    {
        resize(bits);
    }
}

void AxTypeTable::resize(unsigned bits)
{
    std::vector<Slot> const before = std::move(mySlots);
    mySlots.assign(std::size_t{1} << bits, Slot{});
    myMask = mySlots.size() - 1;
    myShift = 64 - bits;
    myFilter.assign((mySlots.size() * theFilterBitsPerSlot + 63) / 64, 0);
    myFilterMask = myFilter.size() - 1;
    for (Slot const& slot : before)
    {
        if (slot.first != nullptr)
        {
            place(slot, AxTypeHash(slot.type).mixed());
        }
    }
}

void AxTypeTable::place(Slot const& slot, std::uint64_t hash)
{
    std::size_t at = hash >> myShift;
    while (mySlots[at].first != nullptr)
    {
        at = (at + 1) & myMask;
    }
    mySlots[at] = slot;
    myFilter[hash >> 6 & myFilterMask] |= std::uint64_t{1} << (hash & 63);
}

void AxTypeTable::add(AxObjectType const& type, AxListItem* item)
{
    if ((myCount + 1) * 4 > mySlots.size() * 3)
    {
        resize(mySlots.empty() ? theFewestBits : static_cast<unsigned>(std::bit_width(mySlots.size())));
    }
    place({type, item, item}, AxTypeHash(type).mixed());
    ++myCount;
}

void AxTypeTable::erase(Slot* slot)
{
    // Slots behind the gap move up unless that would put them in front of where their probing begins.
    std::size_t gap = static_cast<std::size_t>(slot - mySlots.data());
    for (std::size_t at = (gap + 1) & myMask; mySlots[at].first != nullptr; at = (at + 1) & myMask)
    {
        std::size_t const home = AxTypeHash(mySlots[at].type).mixed() >> myShift;
        if (((at - home) & myMask) >= ((at - gap) & myMask))
        {
            mySlots[gap] = mySlots[at];
            gap = at;
        }
    }
    mySlots[gap] = Slot{};
    --myCount;
}

void AxTypeTable::clear()
{
    mySlots.clear();
    myFilter.assign(1, 0);
    myCount = myMask = myFilterMask = 0;
    myShift = 63;
}
