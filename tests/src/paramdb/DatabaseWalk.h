#pragma once

#include "AxZedParameterDb.h"
#include "AxZedParameterDbEntry.h"

#include <algorithm>
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
