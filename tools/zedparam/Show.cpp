#include "Commands.h"

#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Answer.h"
#include "AxZedObjectParameters.h"
#include "AxlPrint.h"
#include "Collection.h"
#include "CommandLine.h"
#include "EditedValue.h"
#include "Findings.h"
#include "Json.h"
#include "NamedElement.h"
#include "Origin.h"
#include "PathText.h"
#include "RecordJson.h"
#include "RecordText.h"
#include "RecordValue.h"
#include "RecordWalk.h"

namespace
{
struct ShowOptions
{
    std::string database;
    std::string type;
    std::vector<std::string> keywords;
    bool json = false;
    bool all = false;
    bool origin = false;
};

/// Tells that the record has nothing of that path, and what may be meant.
void tellMissing(RecordWalk& walk, KeywordPath const& path)
{
    std::vector<KeywordStep> steps;
    readPath(path.text(), steps);
    std::vector<std::string> heads;
    std::vector<std::string> ownNames;
    auto const collect = [&](RecordWalk const& at)
    {
        heads.push_back(at.keyword().string().string());
        ownNames.push_back(at.ownItem() == nullptr ? ownName(at.rw()) : std::string());
    };
    auto const visit = [&](std::string const& pattern)
    {
        heads.clear();
        ownNames.clear();
        KeywordPath all;
        std::string fault;
        KeywordPath::parse(pattern, all, fault);
        walk.run(all, collect);
        return !heads.empty();
    };
    // The longest beginning of the path that there is.
    std::size_t known = steps.size() - 1;
    while (known > 0 && !visit(path.text().substr(0, steps[known].begin - 1)))
    {
        --known;
    }
    bool const isAnyDepth = known > 0 && path.steps()[known - 1].kind == KeywordPath::Step::Kind::AnyDepth;
    std::string const beginning = path.text().substr(0, steps[known].begin);
    std::size_t const parent = known - (isAnyDepth ? 1 : 0);
    std::string const owner = parent > 0 ? steps[parent - 1].name : walk.record().name().string().string();
    KeywordStep const& missing = steps[known];
    bool const isNarrowed = missing.position != 0 || !missing.identity.empty();
    std::string text;
    std::string hint;
    std::string const anywhere = isAnyDepth ? " at any depth" : "";
    if (isNarrowed && visit(beginning + (missing.isQuoted ? stepOf(missing.name) : missing.name)))
    {
        bool const isByOwn = !missing.identity.empty();
        text = (isByOwn ? "there is no " + stepOf(missing.name, missing.identity)
                        : absent(missing.name, missing.position, isAnyDepth ? 0 : heads.size())) +
               anywhere;
        hint = isByOwn ? nearestHint(missing.identity, ownNames) : std::string();
    }
    else
    {
        visit(beginning + "*");
        heads.insert(heads.end(), ownNames.begin(), ownNames.end());
        text = "\"" + owner + "\" has no \"" + missing.name + "\"" + anywhere;
        hint = nearestHint(missing.name, heads);
    }
    std::fprintf(stderr, "zedparam: %s%s%s\n", text.c_str(), hint.empty() ? "" : "; ", hint.c_str());
}

/// False, after a line, when one is no path or the record has nothing there.
bool readPaths(std::vector<std::string> const& keywords, RecordWalk& walk, std::vector<KeywordPath>& paths)
{
    for (std::string const& keyword : keywords)
    {
        KeywordPath path;
        std::string fault;
        if (!KeywordPath::parse(keyword, path, fault))
        {
            std::fprintf(stderr, "zedparam: %s\n", fault.c_str());
            return false;
        }
        bool isThere = false;
        walk.run(path, [&isThere](RecordWalk const&) { isThere = true; });
        if (!isThere)
        {
            tellMissing(walk, path);
            return false;
        }
        paths.push_back(std::move(path));
    }
    return true;
}

/// The value as text, with what is known of it as a comment.
void printText(RecordWalk const& at, bool all)
{
    if (at.ownItem() != nullptr)
    {
        std::string item;
        axAppendCell(item, at.ownItem());
        std::printf("%s\n", item.c_str());
        return;
    }
    AxReaderWriter& rw = at.rw();
    std::string text;
    rw.putSelf(text, 0, all, AxFilename::nullFilename());
    AxKeyword const* description = rw.description();
    if (description != nullptr && text.find('\n') == std::string::npos)
    {
        text.append("  ; ").append(rw.valueSpecified() ? "" : rw.inherited() ? "inherited, " : "default, ");
        text.append(description->unit).append(*description->unit != '\0' ? ", " : "").append(description->help);
    }
    std::printf("%s\n", text.c_str());
}

/// What several objects have under one path comes as an array.
void writeValues(JsonWriter& json, RecordWalk& walk, KeywordPath const& path, bool all)
{
    std::size_t count = 0;
    walk.run(path, [&count](RecordWalk const&) { ++count; });
    if (count > 1)
    {
        json.beginArray();
    }
    walk.run(path, [&](RecordWalk const& at) { writeJson(json, at, all); });
    if (count > 1)
    {
        json.endArray();
    }
}

void printJson(Answer const& answer, RecordWalk& walk, std::vector<KeywordPath> const& paths, bool all)
{
    JsonWriter json;
    json.beginObject();
    writeAnswer(json, answer);
    json.key("values").beginObject();
    for (KeywordPath const& path : paths)
    {
        json.key(path.text());
        writeValues(json, walk, path, all);
    }
    if (paths.empty())
    {
        writeJsonMembers(json, *answer.record, all);
    }
    json.endObject().endObject().print();
}

/// Shows `visit` each value of the paths and below them; without paths those of the whole record that are given.
template <class Visit>
void forEachValue(RecordWalk& walk, std::vector<KeywordPath> const& paths, bool all, Visit const& visit)
{
    auto const visitValue = [&](RecordWalk const& at, bool alsoDefaults)
    {
        bool const isGiven = at.ownItem() != nullptr || at.rw().isDue() || at.rw().inherited();
        bool const isPart = at.ownItem() != nullptr && isLeaf(at.rw());
        std::string const value = isPart ? std::string() : valueText(at);
        if (!value.empty() && value.front() != '(' && (isGiven || alsoDefaults))
        {
            visit(at, value);
        }
    };
    if (paths.empty())
    {
        walk.run(KeywordPath::everything(), [&](RecordWalk const& at) { visitValue(at, all); });
    }
    for (KeywordPath const& path : paths)
    {
        walk.run(path, [&](RecordWalk const& at) { visitValue(at, true); });
        KeywordPath below;
        std::string fault;
        if (KeywordPath::parse(path.text() + "/**", below, fault))
        {
            walk.run(below, [&](RecordWalk const& at) { visitValue(at, all); });
        }
    }
}

void printOrigins(Answer const& answer, RecordWalk& walk, std::vector<KeywordPath> const& paths,
                  ShowOptions const& options)
{
    Origins origins(*answer.database, *answer.entry, *answer.record);
    if (!options.json)
    {
        forEachValue(walk, paths, options.all,
                     [&](RecordWalk const& at, std::string const& value) {
                         std::printf("%s %s  ; %s\n", at.path().c_str(), value.c_str(), origins.of(at).text().c_str());
                     });
        return;
    }
    JsonWriter json;
    json.beginObject();
    writeAnswer(json, answer);
    json.key("values").beginArray();
    forEachValue(walk, paths, options.all,
                 [&](RecordWalk const& at, std::string const&)
                 {
                     writeJson(json.beginObject().member("path", at.path()).key("value"), at, true);
                     origins.of(at).write(json);
                     json.endObject();
                 });
    json.endArray().endObject().print();
}

int show(ShowOptions const& options)
{
    Findings findings(Findings::Print::AtOnce);
    Answer answer;
    int const exitCode = ask(options.database, options.type, answer);
    if (answer.record == nullptr)
    {
        return exitCode;
    }
    RecordWalk walk = Collection::walkThrough(*answer.database, *answer.entry, *answer.record);
    std::vector<KeywordPath> paths;
    if (!readPaths(options.keywords, walk, paths))
    {
        return CouldNotRun;
    }
    if (options.origin)
    {
        printOrigins(answer, walk, paths, options);
    }
    else if (options.json)
    {
        printJson(answer, walk, paths, options.all);
    }
    else if (paths.empty())
    {
        std::printf("%s", recordText(*answer.record, options.all).c_str());
    }
    for (KeywordPath const& path : paths)
    {
        if (!options.origin && !options.json)
        {
            walk.run(path, [&options](RecordWalk const& at) { printText(at, options.all); });
        }
    }
    return findings.empty() ? Fine : HasFindings;
}
} // namespace

void addShowCommand(CommandLine& line)
{
    auto const options = std::make_shared<ShowOptions>();
    line.add("show", "The record that answers an object type, or some of its values.",
             [options] { return show(*options); })
        .required("DB", options->database, "The database file (.opd), or a collection (.params)")
        .required("TYPE", options->type, "The object type, such as 1:1:1:225:1:1:3:0")
        .optional("KEYWORD", options->keywords,
                  "Values to show, such as max-speed or systems/main-gun/reload-time; none: the whole record")
        .flag("--json", options->json, "Print JSON")
        .flag("--all", options->all, "Show members that hold their default, too")
        .flag("--origin", options->origin,
              "Show for each value where it comes from: its place, a variable, another record, a default");
}
