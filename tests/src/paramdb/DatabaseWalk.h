#pragma once

#include "AxZedParameterDb.h"
#include "AxZedParameterDbEntry.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <vector>

/// A database that shows its entries and what answers for a type.
struct WalkedDatabase : AxZedParameterDb
{
    using AxZedParameterDb::addParameterDbEntry;
    using AxZedParameterDb::lookupParameters;

    /// What answers for a type, by the list's item.
    AxZedParameterDbEntry const* found(AxObjectType const& type) const
    {
        AxListItem const* const item = lookupParameters(type);
        return item ? static_cast<AxZedParameterDbEntry const*>(item->data()) : nullptr;
    }
    std::vector<AxZedParameterDbEntry const*> entries() const
    {
        std::vector<AxZedParameterDbEntry const*> all;
        for (AxListItem const* item = parameterList().first(); item; item = item->next())
        {
            all.push_back(static_cast<AxZedParameterDbEntry const*>(item->data()));
        }
        return all;
    }
};

inline AxZedParameterDbEntry* newEntry(AxObjectType const& type, bool isMatchType)
{
    auto* const entry = new AxZedParameterDbEntry;
    entry->setObjectType(type);
    entry->setTypeIsMatchType(isMatchType);
    return entry;
}

/// The definition of the best match and of the ordered insertion, step by step.
class Walk
{
public:
    using Entry = AxZedParameterDbEntry const*;

    Entry found(AxObjectType const& type) const
    {
        std::size_t const at = best(type);
        return at < entries.size() ? entries[at] : nullptr;
    }
    void remove(AxObjectType const& type)
    {
        std::size_t const at = best(type);
        if (at < entries.size() && entries[at]->objectType() == type)
        {
            entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(at));
        }
    }
    /// To be called before the database deletes what is replaced.
    void insert(Entry entry)
    {
        AxObjectType const& type = entry->objectType();
        Entry const old = found(type);
        if (old && old->objectType() == type && (old->typeIsMatchType() || !entry->typeIsMatchType()))
        {
            remove(type);
        }
        if (entries.empty() || entries.back()->objectType() < type)
        {
            entries.push_back(entry);
            return;
        }
        auto const above = std::find_if(entries.begin(), entries.end(),
                                        [&type](Entry standing) { return type < standing->objectType(); });
        if (above != entries.end())
        {
            entries.insert(above, entry);
        }
    }

    std::vector<Entry> entries;

private:
    std::size_t best(AxObjectType const& type) const
    {
        std::size_t best = entries.size();
        for (std::size_t i = 0; i < entries.size(); ++i)
        {
            AxObjectType const& standing = entries[i]->objectType();
            bool const fits = type.matchPattern(standing);
            if (!(standing < type))
            {
                if (standing == type)
                {
                    return i;
                }
                if (!fits)
                {
                    break;
                }
            }
            best = fits ? i : best;
        }
        return best;
    }
};

/// The same answers for types without fields below -1, fast enough to ask for all types of a large list: what fits such
/// a type never stands behind it, so that the last that fits answers, and only entries that agree in the first fields
/// or leave them open can fit.
class GroupedWalk
{
public:
    using Entry = Walk::Entry;

    explicit GroupedWalk(std::vector<Entry> entries) : myEntries(std::move(entries))
    {
        for (std::size_t at = 0; at < myEntries.size(); ++at)
        {
            myGroups[first(myEntries[at]->objectType(), 0)].push_back(at);
        }
    }

    Entry found(AxObjectType const& type) const
    {
        std::size_t best = myEntries.size();
        for (unsigned open = 0; open < 1U << theNumFields; ++open)
        {
            auto const group = myGroups.find(first(type, open));
            if (group == myGroups.end())
            {
                continue;
            }
            for (std::size_t const at : group->second)
            {
                AxObjectType const& standing = myEntries[at]->objectType();
                if (standing == type)
                {
                    return myEntries[at];
                }
                bool const isLater = best == myEntries.size() || at > best;
                best = isLater && type.matchPattern(standing) ? at : best;
            }
        }
        return best < myEntries.size() ? myEntries[best] : nullptr;
    }

private:
    static constexpr std::size_t theNumFields = 5;
    using Fields = std::array<int, theNumFields>;

    static Fields first(AxObjectType const& type, unsigned open)
    {
        Fields fields;
        for (std::size_t i = 0; i < fields.size(); ++i)
        {
            fields[i] = (open >> i & 1U) != 0 ? AxObjectType::theWildcard : type.fields()[i];
        }
        return fields;
    }

    std::vector<Entry> myEntries;
    std::map<Fields, std::vector<std::size_t>> myGroups;
};
