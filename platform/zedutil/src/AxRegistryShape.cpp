#include "AxRegistryShape.h"

#include "AxPlainValue.h"
#include "AxRecord.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace
{
constexpr std::size_t theRunLength = 32;

std::size_t hashOf(void const* address, std::size_t more = 0)
{
    return ((reinterpret_cast<std::uintptr_t>(address) >> 4) + more) * 0x9E3779B97F4A7C15ULL >> 32;
}
} // namespace

constinit AxRegistryShape AxRegistryShape::theRoot[2];
constinit AxRegistryShape* AxRegistryShape::theLatest = theRoot;

AxRegistryShape* AxRegistryShape::child(AxReaderWriter const& owner, AxKeyword const& keyword, std::uint16_t itsPlace)
{
    if (isRoot() && theLatest->isFor(owner, keyword, itsPlace * theUnit))
    {
        return theLatest;
    }
    void const* const itsFunctions = AxReaderWriterFactory::functionsOf(owner);
    if (AxRegistryShape* const known = details ? details->find(keyword.text, itsPlace, itsFunctions) : nullptr)
    {
        theLatest = isRoot() ? known : theLatest;
        return known;
    }
    AxRegistryShape* const made = addChild(owner, keyword, itsPlace);
    details->enter(keyword.text, made);
    return made;
}

AxRegistryTable const& AxRegistryShape::makeTable()
{
    return *(myTable = new AxRegistryTable(*this));
}

AxRegistryShape* AxRegistryShape::addChild(AxReaderWriter const& owner, AxKeyword const& keyword,
                                           std::uint16_t itsPlace)
{
    if (!details)
    {
        details = new Details; // the root's
        details->runEnd = this + 1;
    }
    void const* const id = AxSymbolString(keyword.text).id();
    for (AxRegistryShape* const child : details->children)
    {
        if (child->name == id && child->place == itsPlace &&
            child->functions == AxReaderWriterFactory::functionsOf(owner))
        {
            return child;
        }
    }
    auto itsDetails = std::make_unique<Details>();
    itsDetails->parent = this;
    itsDetails->declaringClass = &typeid(owner);
    itsDetails->description = keyword;
    AxRegistryShape* made = this + 1;
    bool const fits = made != details->runEnd && !made->text;
    std::unique_ptr<AxRegistryShape[]> run(fits ? nullptr : new AxRegistryShape[theRunLength]);
    made = fits ? made : run.get();
    details->children.push_back(made);
    static_cast<void>(run.release());
    itsDetails->runEnd = fits ? details->runEnd : made + theRunLength - 1;
    made->text = keyword.text;
    made->name = id;
    made->functions = AxReaderWriterFactory::functionsOf(owner);
    made->details = itsDetails.release();
    made->place = itsPlace;
    made->distance = static_cast<std::uint32_t>(itsPlace * theUnit);
    made->leadsRun = !fits;
    return made;
}

AxRegistryShape* AxRegistryShape::Details::find(char const* keyword, std::uint16_t itsPlace,
                                                void const* itsFunctions) const
{
    if (known.empty())
    {
        return nullptr;
    }
    std::size_t const mask = known.size() - 1;
    for (std::size_t at = hashOf(keyword, reinterpret_cast<std::uintptr_t>(itsFunctions) + itsPlace) & mask;;
         at = (at + 1) & mask)
    {
        Known const& entry = known[at];
        if (!entry.shape ||
            (entry.text == keyword && entry.shape->place == itsPlace && entry.shape->functions == itsFunctions))
        {
            return entry.shape;
        }
    }
}

void AxRegistryShape::Details::enter(char const* keyword, AxRegistryShape* shape)
{
    if (2 * (knownCount + 1) > known.size())
    {
        std::vector<Known> const old =
            std::exchange(known, std::vector<Known>(std::max<std::size_t>(4, known.size() * 2)));
        knownCount = 0;
        for (Known const& entry : old)
        {
            if (entry.shape)
            {
                enter(entry.text, entry.shape);
            }
        }
    }
    std::size_t const mask = known.size() - 1;
    std::size_t at = hashOf(keyword, reinterpret_cast<std::uintptr_t>(shape->functions) + shape->place) & mask;
    while (known[at].shape)
    {
        at = (at + 1) & mask;
    }
    known[at] = {keyword, shape};
    ++knownCount;
}

AxRegistryTable::AxRegistryTable(AxRegistryShape const& last)
{
    for (AxRegistryShape const* shape = &last; !shape->isRoot(); shape = shape->parent())
    {
        // A keyword that is bound again supersedes the earlier binding.
        AxSymbolString const keyword = AxSymbolString::fromId(shape->name);
        bool const superseded =
            !keyword.isNull() &&
            std::any_of(slots.begin(), slots.end(), [keyword](Slot const& later) { return later.keyword == keyword; });
        if (!superseded)
        {
            slots.emplace_back(keyword, *shape);
        }
    }
    std::reverse(slots.begin(), slots.end());
    std::size_t size = 4;
    while (size < slots.size() * 2)
    {
        size *= 2;
    }
    myMask = size - 1;
    myBuckets.assign(size, 0);
    for (std::size_t i = 0; i < slots.size(); ++i)
    {
        std::size_t bucket = hashOf(slots[i].keyword.id()) & myMask;
        while (myBuckets[bucket] != 0)
        {
            bucket = (bucket + 1) & myMask;
        }
        myBuckets[bucket] = static_cast<std::uint16_t>(i + 1);
        std::size_t const place = slots[i].shape->place;
        myPlaces.resize(std::max(myPlaces.size(), place + 1));
        myPlaces[place] = static_cast<std::uint16_t>(i + 1);
    }
}

std::size_t AxRegistryTable::findPlainSize(AxReaderWriter const& owner) const
{
    std::size_t size = sizeof(AxRecord);
    for (Slot const& slot : slots)
    {
        std::size_t const itsSize = slot.distance == size ? AxPlainValue::sizeOf(slot, owner) : 0;
        if (itsSize == 0)
        {
            return myPlainSize = 0;
        }
        size += itsSize;
    }
    return myPlainSize = size;
}

std::size_t AxRegistryTable::find(AxSymbolString keyword) const
{
    for (std::size_t bucket = hashOf(keyword.id()) & myMask; myBuckets[bucket] != 0; bucket = (bucket + 1) & myMask)
    {
        std::size_t const slot = myBuckets[bucket] - 1U;
        if (slots[slot].keyword == keyword)
        {
            return slot;
        }
    }
    return none;
}
