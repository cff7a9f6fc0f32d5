#include "AxTypeTable.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr unsigned theFewestGroupBits = 1;
} // namespace

void AxTypeTable::reserve(std::size_t count)
{
    std::size_t const groups = (count + count / 7) / theGroupSize + 1;
    if (myGroups.size() < groups)
    {
        resize(std::max(theFewestGroupBits, static_cast<unsigned>(std::bit_width(groups - 1))));
    }
}

void AxTypeTable::resize(unsigned groupBits)
{
    std::size_t const count = std::size_t{1} << groupBits;
    auto slots = std::make_unique_for_overwrite<Slot[]>(count * theGroupSize);
    std::vector<Group> groups(count);
    mySlots.swap(slots);
    myGroups.swap(groups);
    myMask = count - 1;
    myShift = 64 - groupBits;
    myNumErased = 0;
    for (std::size_t group = 0; group < groups.size(); ++group)
    {
        for (std::uint64_t taken = groups[group].tags & theHighBits; taken != 0; taken &= taken - 1)
        {
            Slot const& slot = slots[group * theGroupSize + byteOf(taken)];
            place(slot, AxTypeHash(AxObjectType(slot.fields)).mixed());
        }
    }
}

void AxTypeTable::place(Slot const& slot, std::uint64_t hash)
{
    std::size_t group = hash >> myShift;
    myGroups[group].filter |= std::uint64_t{1} << (hash & 63);
    while ((myGroups[group].tags & theHighBits) == theHighBits)
    {
        group = (group + 1) & myMask;
    }
    std::uint64_t const tags = myGroups[group].tags;
    std::size_t const at = byteOf(~tags & theHighBits);
    myNumErased -= (tags >> at * 8 & 0xFF) == theErased;
    myGroups[group].setTag(at, tagOf(hash));
    mySlots[group * theGroupSize + at] = slot;
}

void AxTypeTable::add(AxObjectType const& type, Found const& found, std::uint64_t hash)
{
    if ((myCount + myNumErased + 1) * 8 > numSlots() * 7)
    {
        bool const isFull = myCount * 2 >= numSlots();
        resize(myGroups.empty() ? theFewestGroupBits : static_cast<unsigned>(std::bit_width(myMask)) + isFull);
    }
    place({type.fields(), found, found}, hash);
    ++myCount;
}

void AxTypeTable::erase(Slot* slot)
{
    auto const at = static_cast<std::size_t>(slot - mySlots.get());
    Group& group = myGroups[at / theGroupSize];
    bool const hasFree = zeroBytes(group.tags) != 0;
    group.setTag(at % theGroupSize, hasFree ? theFree : theErased);
    myNumErased += !hasFree;
    --myCount;
}

void AxTypeTable::clear()
{
    mySlots.reset();
    myGroups.clear();
    myCount = myNumErased = myMask = 0;
    myShift = 63;
}
