#pragma once

#include "AxEntityType.h"
#include "AxRwList.h"

/// As `type.matchPattern(pattern)`, ended by the first field that differs: most entries of a table fail in an early
/// one.
inline bool axFits(AxEntityType const& type, AxEntityType const& pattern)
{
    for (std::size_t i = 0; i < AxEntityType::theNumFields; ++i)
    {
        std::int32_t const wanted = pattern.fields()[i];
        if (wanted != type.fields()[i] && wanted != AxEntityType::theWildcard)
        {
            return false;
        }
    }
    return true;
}

/// The item whose `entityType()` answers for `type` in a list in file order: the first that is exactly that type,
/// otherwise the last whose type is a pattern that `type` fits; null when none does.
template <class Entry>
AxListItem* axLookUpByType(AxList const& list, AxEntityType const& type)
{
    AxListItem* best = nullptr;
    for (AxListItem* item = list.first(); item; item = item->next())
    {
        AxEntityType const& own = static_cast<Entry const*>(AxRwList::element(item))->entityType();
        if (axFits(type, own))
        {
            if (own == type)
            {
                return item;
            }
            best = item;
        }
    }
    return best;
}
