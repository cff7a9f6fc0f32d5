#include "ReportTree.h"

#include <algorithm>

#include "AxSxpParameterDbEntry.h"

namespace
{
std::ptrdiff_t fixedFields(AxObjectType const& type)
{
    return AxObjectType::theNumFields - std::ranges::count(type.fields(), AxObjectType::theWildcard);
}
} // namespace

void growTree(std::vector<ReportEntry>& entries)
{
    std::vector<std::size_t> patterns;
    for (std::size_t i = 0; i < entries.size(); ++i)
    {
        if (fixedFields(entries[i].entry->objectType()) < AxObjectType::theNumFields)
        {
            patterns.push_back(i);
        }
    }
    for (std::size_t i = 0; i < entries.size(); ++i)
    {
        AxObjectType const& type = entries[i].entry->objectType();
        std::ptrdiff_t best = -1;
        for (std::size_t const pattern : patterns)
        {
            AxObjectType const& above = entries[pattern].entry->objectType();
            if (above != type && type.matchPattern(above) && fixedFields(above) >= best)
            {
                best = fixedFields(above);
                entries[i].parent = pattern;
            }
        }
        if (entries[i].parent != ReportEntry::none)
        {
            entries[entries[i].parent].children.push_back(i);
        }
    }
}
