#include "TypeMatch.h"

#include <algorithm>
#include <map>
#include <unordered_map>

#include "AxSxpParameterDbFileEntry.h"
#include "Database.h"
#include "ShownPath.h"

namespace
{
int firstMisfit(AxObjectType const& type, AxObjectType const& pattern)
{
    int field = 0;
    while (field < AxObjectType::theNumFields)
    {
        auto const i = static_cast<std::size_t>(field);
        if (pattern.fields()[i] != AxObjectType::theWildcard && pattern.fields()[i] != type.fields()[i])
        {
            break;
        }
        ++field;
    }
    return field;
}

/// Goes the way of the look-up and answers where it ends; `fitting` receives those that fit, the best last.
std::size_t walk(AxObjectType const& type, std::vector<Candidate> const& candidates, std::vector<std::size_t>& fitting)
{
    for (std::size_t i = 0; i < candidates.size(); ++i)
    {
        AxObjectType const& its = candidates[i].entry->objectType();
        bool const fits = type.matchPattern(its);
        if (fits)
        {
            fitting.push_back(i);
        }
        if (its == type || (type < its && !fits))
        {
            return i;
        }
    }
    return candidates.size();
}
} // namespace

bool EntryReader::loadParameterDb(AxFilename const& file, AxSxpParameterDb* db)
{
    myFile = shownPath(file.native());
    return AxSxpParameterDbReader::loadParameterDb(file, db);
}

void EntryReader::entryAddedFor(AxSxpParameterDbFileEntry* fileEntry, AxSxpParameterDbEntry* dbEntry)
{
    std::string const file = shownPath(fileEntry->filename().native());
    Place const place = fileEntry->line() != 0 ? Place{myFile, fileEntry->line(), fileEntry->column()}
                                               : Place{file, fileEntry->elementLine(), fileEntry->elementColumn()};
    myEntries.push_back({fileEntry->objectType(), fileEntry->typeIsMatchType(), file, place, dbEntry});
}

std::vector<Candidate> candidatesFor(AxObjectType const& type, Database const& database,
                                     std::vector<ReadEntry> const& read)
{
    std::unordered_map<AxSxpParameterDbEntry const*, ReadEntry const*> readAs; // of equal addresses the last lives
    for (ReadEntry const& entry : read)
    {
        readAs[entry.entry] = &entry;
    }
    std::vector<Candidate> candidates;
    for (AxSxpParameterDbEntry* entry : database.entries())
    {
        candidates.push_back({entry, readAs[entry], 0, firstMisfit(type, entry->objectType())});
    }
    std::vector<std::size_t> fitting;
    for (std::size_t i = walk(type, candidates, fitting) + 1; i < candidates.size(); ++i)
    {
        candidates[i].isReached = false;
    }
    for (std::size_t i = 0; i < fitting.size(); ++i)
    {
        candidates[fitting[i]].rank = static_cast<int>(fitting.size() - i);
    }
    return candidates;
}

std::vector<HiddenEntry> hiddenEntries(std::vector<Candidate> const& candidates, std::vector<ReadEntry> const& read)
{
    struct Run
    {
        ReadEntry const* first;
        ReadEntry const* last;
    };
    std::map<AxObjectType, Run> runs; // what the list holds of each type
    for (Candidate const& candidate : candidates)
    {
        runs.try_emplace(candidate.entry->objectType(), Run{candidate.read, nullptr}).first->second.last =
            candidate.read;
    }
    std::vector<HiddenEntry> hidden;
    for (ReadEntry const& entry : read)
    {
        auto const run = runs.find(entry.type);
        if (run == runs.end() || &entry == run->second.first)
        {
            continue;
        }
        // The last answers the types that the pattern covers, the first the pattern itself.
        bool const isPattern = std::ranges::count(entry.type.fields(), AxObjectType::theWildcard) != 0;
        if (!isPattern || &entry != run->second.last)
        {
            ReadEntry const* const by = isPattern ? run->second.last : run->second.first;
            hidden.push_back({&entry, by, &entry < by});
        }
    }
    return hidden;
}

char const* fieldName(int field)
{
    constexpr char const* theNames[AxObjectType::theNumFields] = {"super type", "kind",        "domain",   "country",
                                                                  "category",   "subcategory", "specific", "extra"};
    return theNames[field];
}
