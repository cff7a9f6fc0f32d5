#include "Commands.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "Collection.h"
#include "CommandLine.h"
#include "Findings.h"
#include "Json.h"
#include "TypeArgument.h"
#include "TypeMatch.h"

namespace
{
struct WhyOptions
{
    std::string database;
    std::string type;
    bool json = false;
    bool all = false;
};

/// What is told of a look-up.
struct Account
{
    AxObjectType type;
    std::vector<Candidate const*> best; ///< those that fit, the winner first
    std::vector<Candidate const*> shown;
    std::array<int, AxObjectType::theNumFields> omitted{}; ///< how many by the field that rules them out
    std::vector<HiddenEntry> hidden;
    std::size_t hiddenElsewhere = 0; ///< that do not concern the type
};

/// The first field from which on the misfits are few enough to be shown. What differs in kind or domain is of no help.
int firstFieldShown(std::vector<Candidate> const& candidates)
{
    constexpr int theFirst = 3;
    constexpr std::ptrdiff_t theMost = 20;
    int field = theFirst;
    auto const isMany = [&]
    {
        return std::ranges::count_if(candidates, [field](Candidate const& candidate)
                                     { return candidate.rank == 0 && candidate.field >= field; }) > theMost;
    };
    while (isMany())
    {
        ++field;
    }
    return field;
}

Account accountOf(AxObjectType const& type, std::vector<Candidate> const& candidates,
                  std::vector<ReadEntry> const& read, bool all)
{
    Account account;
    account.type = type;
    int const firstField = all ? 0 : firstFieldShown(candidates);
    for (Candidate const& candidate : candidates)
    {
        if (candidate.rank != 0)
        {
            account.best.insert(account.best.begin(), &candidate);
        }
        if (candidate.rank != 0 || candidate.field >= firstField)
        {
            account.shown.push_back(&candidate);
        }
        else
        {
            ++account.omitted[static_cast<std::size_t>(candidate.field)];
        }
    }
    for (HiddenEntry const& entry : hiddenEntries(candidates, read))
    {
        if (all || type.matchPattern(entry.read->type))
        {
            account.hidden.push_back(entry);
        }
        else
        {
            ++account.hiddenElsewhere;
        }
    }
    return account;
}

/// Those of a collection, whose records stand in its own file.
void addEntries(Collection const& collection, std::vector<ReadEntry>& read)
{
    for (AxSxpParameterDbEntry* entry : collection.entries())
    {
        AxObjectType const& type = entry->objectType();
        read.push_back({type, false, collection.collectionFile(), collection.placeOf(type), entry});
    }
}

std::string outcome(Candidate const& candidate, AxObjectType const& type)
{
    AxObjectType const& its = candidate.entry->objectType();
    if (candidate.rank != 0)
    {
        return its == type ? "is the type: wins" : "fits, rank " + std::to_string(candidate.rank);
    }
    if (candidate.field == AxObjectType::theNumFields)
    {
        return "fits, but the look-up ends before it";
    }
    auto const field = static_cast<std::size_t>(candidate.field);
    return std::string(fieldName(candidate.field)) + " is " + std::to_string(its.fields()[field]) + ", asked " +
           std::to_string(type.fields()[field]);
}

/// Why the first answers and not the second.
std::string advantage(AxObjectType const& winner, AxObjectType const& other)
{
    if (winner == other)
    {
        return "both have this type; the later in the list answers";
    }
    std::size_t field = 0;
    while (winner.fields()[field] == other.fields()[field])
    {
        ++field;
    }
    std::string text = fieldName(static_cast<int>(field));
    text += " is " + std::to_string(winner.fields()[field]) + " in the winner, ";
    return text + (other.fields()[field] == AxObjectType::theWildcard ? "any" : "less") + " in the runner-up";
}

std::string places(ReadEntry const& entry, std::string const& file)
{
    return entry.place.file.empty() ? file : entry.isElement() ? entry.place.text() : entry.place.text() + "  " + file;
}
std::string placesOf(ReadEntry const& entry)
{
    return places(entry, entry.file);
}
std::string placesOf(Candidate const& candidate)
{
    return places(*candidate.read, Database::fileOf(*candidate.entry));
}

char const* matchOf(Candidate const& candidate)
{
    return candidate.entry->typeIsMatchType()      ? "match type"
           : Database::isPattern(*candidate.entry) ? "pattern"
                                                   : "exact";
}

void printBest(char const* title, Candidate const& candidate)
{
    std::printf("%-10s %s (%s)  %s\n", title, candidate.entry->objectType().string().c_str(), matchOf(candidate),
                placesOf(candidate).c_str());
}

void printText(Account const& account)
{
    std::printf("%-10s %s\n", "type", account.type.string().c_str());
    if (account.best.empty())
    {
        std::printf("%-10s none\n", "winner");
    }
    else
    {
        printBest("winner", *account.best.front());
    }
    if (account.best.size() > 1)
    {
        printBest("runner-up", *account.best[1]);
        std::printf("%-10s %s\n", "because",
                    advantage(account.best[0]->entry->objectType(), account.best[1]->entry->objectType()).c_str());
    }
    std::printf("candidates, in the order of the look-up: of those that fit the last wins\n");
    std::size_t typeWidth = 0;
    std::size_t outcomeWidth = 0;
    for (Candidate const* candidate : account.shown)
    {
        typeWidth = std::max(typeWidth, candidate->entry->objectType().string().string().size());
        outcomeWidth = std::max(outcomeWidth, outcome(*candidate, account.type).size());
    }
    for (Candidate const* candidate : account.shown)
    {
        std::printf("  %-*s  %-*s  %s\n", static_cast<int>(typeWidth), candidate->entry->objectType().string().c_str(),
                    static_cast<int>(outcomeWidth), outcome(*candidate, account.type).c_str(),
                    placesOf(*candidate).c_str());
    }
    std::string omitted;
    for (std::size_t field = 0; field < account.omitted.size(); ++field)
    {
        if (account.omitted[field] != 0)
        {
            omitted += (omitted.empty() ? "" : ", ") + std::to_string(account.omitted[field]) + " by " +
                       fieldName(static_cast<int>(field));
        }
    }
    if (!omitted.empty())
    {
        std::printf("  ruled out and not listed without --all: %s\n", omitted.c_str());
    }
    for (HiddenEntry const& entry : account.hidden)
    {
        std::printf("%-10s %s  %s: %s %s\n", "hidden", entry.read->type.string().c_str(), placesOf(*entry.read).c_str(),
                    entry.isReplaced ? "replaced by the later" : "kept out by the exact", placesOf(*entry.by).c_str());
    }
    if (account.hiddenElsewhere != 0)
    {
        std::printf("%-10s %zu of other types; --all lists them\n", "hidden", account.hiddenElsewhere);
    }
}

void writeEntry(JsonWriter& json, ReadEntry const& entry, std::string const& file)
{
    json.member("entry", entry.type.string().string()).member("record-file", file);
    if (!entry.place.file.empty())
    {
        entry.place.write(json);
    }
}
void writeEntry(JsonWriter& json, Candidate const& candidate)
{
    writeEntry(json, *candidate.read, Database::fileOf(*candidate.entry));
}

void writeBest(JsonWriter& json, char const* key, Account const& account, std::size_t rank)
{
    json.key(key);
    if (account.best.size() < rank)
    {
        json.null();
        return;
    }
    json.beginObject();
    writeEntry(json, *account.best[rank - 1]);
    json.member("match", matchOf(*account.best[rank - 1]));
    json.endObject();
}

void printJson(Account const& account)
{
    JsonWriter json;
    json.beginObject().member("type", account.type.string().string());
    writeBest(json, "winner", account, 1);
    writeBest(json, "runner-up", account, 2);
    json.key("candidates").beginArray();
    for (Candidate const* candidate : account.shown)
    {
        json.beginObject();
        writeEntry(json, *candidate);
        if (candidate->rank != 0)
        {
            json.key("rank").integer(candidate->rank);
        }
        else if (candidate->field < AxObjectType::theNumFields)
        {
            auto const field = static_cast<std::size_t>(candidate->field);
            json.member("field", fieldName(candidate->field));
            json.key("value").integer(candidate->entry->objectType().fields()[field]);
            json.key("asked").integer(account.type.fields()[field]);
        }
        json.endObject();
    }
    json.endArray().key("not-listed").beginObject();
    for (std::size_t field = 0; field < account.omitted.size(); ++field)
    {
        if (account.omitted[field] != 0)
        {
            json.key(fieldName(static_cast<int>(field))).integer(account.omitted[field]);
        }
    }
    json.endObject().key("hidden").beginArray();
    for (HiddenEntry const& entry : account.hidden)
    {
        json.beginObject();
        writeEntry(json, *entry.read, entry.read->file);
        json.member("why", entry.isReplaced ? "replaced" : "kept-out").key("by").beginObject();
        writeEntry(json, *entry.by, entry.by->file);
        json.endObject().endObject();
    }
    json.endArray().endObject().print();
}

int why(WhyOptions const& options)
{
    Findings findings(Findings::Print::AtOnce);
    TypeArgument argument;
    if (!readType(options.type, argument))
    {
        return CouldNotRun;
    }
    std::vector<ReadEntry> read;
    std::unique_ptr<Database> const database =
        Collection::openAny(options.database, std::make_unique<EntryReader>(read));
    if (database == nullptr)
    {
        return CouldNotRun;
    }
    if (auto const* collection = dynamic_cast<Collection const*>(database.get()))
    {
        addEntries(*collection, read);
    }
    AxObjectType const type = typeToAsk(argument, *database);
    std::vector<Candidate> const candidates = candidatesFor(type, *database, read);
    Account const account = accountOf(type, candidates, read, options.all);
    options.json ? printJson(account) : printText(account);
    return account.best.empty() || !findings.empty() ? HasFindings : Fine;
}
} // namespace

void addWhyCommand(CommandLine& line)
{
    auto const options = std::make_shared<WhyOptions>();
    line.add("why", "Why an entry answers an object type, and why the others do not.",
             [options] { return why(*options); })
        .required("DB", options->database, "The database file (.opd), or a collection (.params)")
        .required("TYPE", options->type, "The object type, such as 1:1:1:225:1:1:3:0")
        .flag("--json", options->json, "Print JSON")
        .flag("--all", options->all, "List every entry, also those that differ early");
}
