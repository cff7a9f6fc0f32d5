#include "AxTypeTable.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr unsigned theFewestGroupBits = 1;
/// A table is up to seven eighths full, so about one probe in twenty passes the filter by chance.
constexpr std::size_t theFilterBitsPerSlot = 16;
} // namespace

void AxTypeTable::reserve(std::size_t count)
{
    std::size_t const groups = (count + count / 7) / theGroupSize + 1;
    if (myTags.size() < groups * theGroupSize)
    {
        resize(std::max(theFewestGroupBits, static_cast<unsigned>(std::bit_width(groups - 1))));
    }
}

void AxTypeTable::resize(unsigned groupBits)
{
    std::size_t const groups = std::size_t{1} << groupBits;
    std::unique_ptr<Slot[]> const slots =
        std::exchange(mySlots, std::make_unique_for_overwrite<Slot[]>(groups * theGroupSize));
    std::vector<std::uint8_t> const tags =
        std::exchange(myTags, std::vector<std::uint8_t>(groups * theGroupSize, theFree));
    myMask = groups - 1;
    myShift = 64 - groupBits;
    myNumErased = 0;
    myFilter.assign((myTags.size() * theFilterBitsPerSlot + 63) / 64, 0);
    myFilterMask = myFilter.size() - 1;
    for (std::size_t i = 0; i < tags.size(); ++i)
    {
        if (tags[i] > theErased)
        {
            place(slots[i], AxTypeHash(AxObjectType(slots[i].fields)).mixed());
        }
    }
}

void AxTypeTable::place(Slot const& slot, std::uint64_t hash)
{
    std::size_t group = hash >> myShift;
    while ((tagsOf(group) & theHighBits) == theHighBits)
    {
        group = (group + 1) & myMask;
    }
    std::size_t const at = group * theGroupSize + byteOf(~tagsOf(group) & theHighBits);
    myNumErased -= myTags[at] == theErased;
    myTags[at] = tagOf(hash);
    mySlots[at] = slot;
    myFilter[hash >> 6 & myFilterMask] |= std::uint64_t{1} << (hash & 63);
}

void AxTypeTable::add(AxObjectType const& type, Found const& found, std::uint64_t hash)
{
    if ((myCount + myNumErased + 1) * 8 > myTags.size() * 7)
    {
        bool const isFull = myCount * 2 >= myTags.size();
        resize(myTags.empty() ? theFewestGroupBits : static_cast<unsigned>(std::bit_width(myMask)) + isFull);
    }
    place({type.fields(), found, found}, hash);
    ++myCount;
}

void AxTypeTable::erase(Slot* slot)
{
    auto const at = static_cast<std::size_t>(slot - mySlots.get());
    bool const hasFree = zeroBytes(tagsOf(at / theGroupSize)) != 0;
    myTags[at] = hasFree ? theFree : theErased;
    myNumErased += !hasFree;
    --myCount;
}

void AxTypeTable::clear()
{
    mySlots.reset();
    myTags.clear();
    myFilter.assign(1, 0);
    myCount = myNumErased = myMask = myFilterMask = 0;
    myShift = 63;
}
