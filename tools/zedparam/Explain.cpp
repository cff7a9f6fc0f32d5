#include "Commands.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "AxNearest.h"
#include "Catalogue.h"
#include "Collection.h"
#include "CommandLine.h"
#include "Findings.h"
#include "Json.h"
#include "KeywordUse.h"

namespace
{
/// One meaning of a keyword: the type that declares it, and where it is found.
struct Meaning
{
    KeywordInfo const* info;
    std::vector<TypeInfo const*> types;
    std::vector<KeywordInfo const*> uses; ///< one for each of the types
};

bool answersTo(KeywordInfo const& info, std::string_view keyword)
{
    return info.keyword() == keyword || std::ranges::find(info.aliases, keyword) != info.aliases.end();
}

std::vector<Meaning> meaningsOf(std::string_view keyword)
{
    std::vector<Meaning> meanings;
    for (TypeInfo const& type : knownTypes())
    {
        for (KeywordInfo const& info : type.keywords)
        {
            if (!answersTo(info, keyword))
            {
                continue;
            }
            auto known =
                std::ranges::find_if(meanings, [&info](Meaning const& other)
                                     { return other.info->from == info.from && other.info->path == info.path; });
            if (known == meanings.end())
            {
                known = meanings.insert(known, {&info, {}, {}});
            }
            known->types.push_back(&type);
            known->uses.push_back(&info);
        }
    }
    return meanings;
}

/// The types that know each of the other spellings.
std::map<std::string, std::string> aliasesOf(Meaning const& meaning)
{
    std::map<std::string, std::string> typesByAlias;
    for (std::size_t i = 0; i < meaning.uses.size(); ++i)
    {
        for (std::string const& alias : meaning.uses[i]->aliases)
        {
            std::string& types = typesByAlias[alias];
            types.append(types.empty() ? "" : ", ").append(meaning.types[i]->name);
        }
    }
    return typesByAlias;
}

void tellUnknown(std::string_view keyword)
{
    std::set<std::string_view> known;
    for (TypeInfo const& type : knownTypes())
    {
        for (KeywordInfo const& info : type.keywords)
        {
            known.insert(info.keyword());
            known.insert(info.aliases.begin(), info.aliases.end());
        }
    }
    std::fprintf(stderr, "zedparam: no type has the keyword \"%s\"", std::string(keyword).c_str());
    std::vector<std::string_view> const candidates(known.begin(), known.end());
    if (std::string_view const nearest = axNearest(keyword, candidates); !nearest.empty())
    {
        std::fprintf(stderr, "; did you mean \"%s\"?", std::string(nearest).c_str());
    }
    std::fprintf(stderr, "\n");
}

void printMeaning(Meaning const& meaning)
{
    KeywordInfo const& info = *meaning.info;
    std::printf("%s: %s\n  %s\n", info.path.c_str(), info.valueText().c_str(), info.help.c_str());
    std::printf("  declared by %s\n", info.from.c_str());
    for (auto const& [alias, types] : aliasesOf(meaning))
    {
        std::printf("  also written %s in %s\n", alias.c_str(), types.c_str());
    }
    std::string const& usual = meaning.uses.front()->defaultText;
    if (!usual.empty())
    {
        std::printf("  default %s\n", usual.c_str());
    }
    std::printf("  in %zu %s", meaning.types.size(), meaning.types.size() == 1 ? "type" : "types");
    for (std::size_t i = 0; i < meaning.types.size(); ++i)
    {
        std::string const& its = meaning.uses[i]->defaultText;
        std::string const note = its == usual ? std::string() : " (default " + its + ")";
        std::printf("%s\n    %s%s", i == 0 ? ":" : ",", meaning.types[i]->name.c_str(), note.c_str());
    }
    std::printf("\n");
}

void writeMeanings(JsonWriter& json, std::vector<Meaning> const& meanings)
{
    json.beginArray();
    for (Meaning const& meaning : meanings)
    {
        json.beginObject().member("keyword", meaning.info->path);
        KeywordInfo info = *meaning.info;
        info.aliases.clear();
        for (auto const& [alias, types] : aliasesOf(meaning))
        {
            info.aliases.push_back(alias);
        }
        writeKeyword(json, info);
        json.key("types").beginObject();
        for (std::size_t i = 0; i < meaning.types.size(); ++i)
        {
            json.member(meaning.types[i]->name, meaning.uses[i]->defaultText);
        }
        json.endObject().endObject();
    }
    json.endArray();
}

void printMeanings(std::vector<Meaning> const& meanings)
{
    for (Meaning const& meaning : meanings)
    {
        std::printf("%s", &meaning == meanings.data() ? "" : "\n");
        printMeaning(meaning);
    }
}

struct ExplainOptions
{
    std::string keyword;
    std::string database;
    bool json = false;
};

/// What the keyword means, without a database.
int explain(ExplainOptions const& options)
{
    std::vector<Meaning> const meanings = meaningsOf(options.keyword);
    if (options.json)
    {
        JsonWriter json;
        writeMeanings(json, meanings);
        json.print();
    }
    else
    {
        printMeanings(meanings);
    }
    if (meanings.empty())
    {
        tellUnknown(options.keyword);
        return HasFindings;
    }
    return Fine;
}

/// The same, and how the records of the database use it. A keyword alone is meant wherever it stands.
int explainUse(ExplainOptions const& options)
{
    bool const isPath = options.keyword.find('/') != std::string::npos;
    KeywordPath path;
    std::string fault;
    if (!KeywordPath::parse(options.keyword, path, fault) ||
        (!isPath && !KeywordPath::parse("**/" + options.keyword, path, fault)))
    {
        std::fprintf(stderr, "zedparam: %s\n", fault.c_str());
        return CouldNotRun;
    }
    Findings findings(Findings::Print::AtOnce);
    std::unique_ptr<Database> const database = Collection::openAny(options.database);
    if (database == nullptr)
    {
        return CouldNotRun;
    }
    bool isComplete = false;
    KeywordUses const uses = usesOf(path, *database, isComplete);
    std::vector<Meaning> const meanings = meaningsOf(path.last());
    if (options.json)
    {
        JsonWriter json;
        writeMeanings(json.beginObject().key("meanings"), meanings);
        writeUses(json.key("uses"), uses);
        json.endObject().print();
    }
    else
    {
        printMeanings(meanings);
        std::printf("%s%s %s\n", meanings.empty() ? "" : "\n", uses.empty() ? "not used in" : "in",
                    options.database.c_str());
        printUses(uses);
    }
    if (meanings.empty() && uses.empty())
    {
        tellUnknown(path.last());
    }
    return isComplete && !uses.empty() && !findings.has("cannot-open") ? Fine : HasFindings;
}
} // namespace

void addExplainCommand(CommandLine& line)
{
    auto const options = std::make_shared<ExplainOptions>();
    line.add("explain", "What a keyword means, which types have it, and how a database uses it.",
             [options] { return options->database.empty() ? explain(*options) : explainUse(*options); })
        .required("KEYWORD", options->keyword, "The keyword, such as max-speed; with a database also a path")
        .optional("DB", options->database, "A database file (.opd), or a collection (.params), to tell the use in")
        .flag("--json", options->json, "Print JSON; under \"types\" stands the default of each");
}
