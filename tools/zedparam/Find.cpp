#include "Commands.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "AxNearest.h"
#include "AxZedObjectParameters.h"
#include "Catalogue.h"
#include "Collection.h"
#include "CommandLine.h"
#include "FindExpression.h"
#include "Findings.h"
#include "Json.h"
#include "Places.h"
#include "Progress.h"
#include "RecordJson.h"

namespace
{
struct FindOptions
{
    std::string database;
    std::string expression;
    std::vector<std::string> keywords;
    bool json = false;
};

void reportFault(std::string const& expression, ExpressionFault const& fault)
{
    AxDiagnostic diagnostic;
    diagnostic.file = "expression";
    diagnostic.line = 1;
    diagnostic.column = static_cast<unsigned>(fault.column);
    diagnostic.text = fault.text;
    std::fprintf(stderr, "%s\n  %s\n  %*s\n", diagnostic.format().c_str(), expression.c_str(),
                 static_cast<int>(fault.column), "^");
}

/// Tells of the keywords that nothing had, but for those in `told`; often they are misspelt. `who` was asked for them.
void reportUnknown(std::vector<FindExpression::Path> const& paths, char const* who, bool isOfTheExpression,
                   std::set<std::string>& told)
{
    for (FindExpression::Path const& path : paths)
    {
        if (path.wasFound || !path.wasAsked || !told.insert(path.keywords.text()).second)
        {
            continue;
        }
        std::set<std::string_view> known;
        for (TypeInfo const& type : knownTypes())
        {
            for (KeywordInfo const& info : type.keywords)
            {
                known.insert(info.keyword());
            }
        }
        std::vector<std::string_view> const candidates(known.begin(), known.end());
        std::string_view const nearest = axNearest(path.keywords.last(), candidates);
        KeywordStep const& last = path.keywords.steps().back().text;
        bool const isNarrowed = last.position != 0 || !last.identity.empty(); // the keyword may well be right
        bool const isKnown = nearest == path.keywords.last();
        bool const isOneStep = path.keywords.steps().size() == 1 && !isNarrowed;
        std::string const asked = path.keywords.text();
        std::string const hint = isKnown && isOneStep             ? "; \"**/" + asked + "\" is it at any depth"
                                 : isKnown || isNarrowed          ? ""
                                 : !nearest.empty()               ? "; did you mean \"" + std::string(nearest) + "\"?"
                                 : isOneStep && isOfTheExpression ? "; texts stand in quotes"
                                                                  : "";
        std::fprintf(stderr, "zedparam: no %s has \"%s\"%s\n", who, asked.c_str(), hint.c_str());
    }
}

/// Asks record after record, and prints each that answers at once.
class Search
{
public:
    Search(FindOptions const& options, FindExpression& expression, std::vector<FindExpression::Path> shown)
        : myOptions(options), myExpression(expression), myShown(std::move(shown))
    {
    }

    int run(Database const& database)
    {
        if (myOptions.json)
        {
            myJson.beginArray();
        }
        bool const isComplete = database.forEachRecord(
            "reading", [&](AxSxpParameterDbEntry& entry, AxZedObjectParameters& record, Progress& progress)
            { ask(entry, Collection::walkThrough(database, entry, record), progress); });
        if (myOptions.json)
        {
            myJson.endArray().print();
        }
        if (!myFault.text.empty())
        {
            reportFault(myOptions.expression, myFault);
            return CouldNotRun;
        }
        tellWhatIsOdd();
        return isComplete && myHasFound ? Fine : HasFindings;
    }

private:
    void tellWhatIsOdd() const
    {
        std::set<std::string> told;
        reportUnknown(myExpression.paths(), "record", true, told);
        if (myHasFound && !myOptions.keywords.empty())
        {
            reportUnknown(myShown, "record that was found", false, told);
        }
        for (std::string const& line : myExpression.futile())
        {
            std::fprintf(stderr, "zedparam: %s\n", line.c_str());
        }
    }

    void ask(AxSxpParameterDbEntry const& entry, RecordWalk walk, Progress& progress)
    {
        if (!myFault.text.empty() || !myExpression.holds(entry, walk, myFault))
        {
            return;
        }
        myHasFound = true;
        progress.clear();
        myOptions.json ? writeFound(entry, walk) : printFound(entry, walk);
    }

    /// Where the first value stands that is shown, else where the record begins.
    Place placeOf(RecordWalk& walk)
    {
        myPlaces.goTo(walk.files().front());
        Place place;
        for (FindExpression::Path& path : myShown)
        {
            path.wasAsked = true;
            walk.run(path.keywords,
                     [&](RecordWalk const& at)
                     {
                         path.wasFound = true;
                         bool const isGiven = at.ownItem() != nullptr || at.rw().isDue();
                         place = place.line == 0 && isGiven && at.isInRecordsOwnFile() ? myPlaces.of(at) : place;
                     });
        }
        return place.line != 0 ? place : myPlaces.ofRecord(walk);
    }

    void printFound(AxSxpParameterDbEntry const& entry, RecordWalk& walk)
    {
        Place const place = placeOf(walk);
        std::string line = entry.objectType().string().string() + "  " + place.file + ":" + std::to_string(place.line) +
                           "  " + walk.record().name().string().string();
        for (FindExpression::Path const& path : myShown)
        {
            walk.run(path.keywords, [&line](RecordWalk const& at) { appendValue(line, at); });
        }
        std::printf("%s\n", line.c_str());
    }

    static void appendValue(std::string& line, RecordWalk const& at)
    {
        std::string const value = valueText(at);
        if (value.empty())
        {
            return;
        }
        line.append("  ").append(at.path()).append(" ").append(value);
        std::string unit;
        unitOf(at, unit);
        line.append(unit.empty() ? "" : " ").append(unit);
        bool const isGiven = at.ownItem() != nullptr || at.rw().isDue();
        line.append(isGiven ? "" : at.rw().inherited() ? " (inherited)" : " (default)");
    }

    void writeFound(AxSxpParameterDbEntry const& entry, RecordWalk& walk)
    {
        Place const place = placeOf(walk);
        myJson.beginObject().member("entry", entry.objectType().string().string());
        place.write(myJson);
        myJson.member("name", walk.record().name().view());
        myJson.key("values").beginArray();
        for (FindExpression::Path const& path : myShown)
        {
            walk.run(path.keywords, [this](RecordWalk const& at) { writeValue(at); });
        }
        myJson.endArray().endObject().flush();
    }

    void writeValue(RecordWalk const& at)
    {
        myJson.beginObject().member("path", at.path()).key("value");
        writeJson(myJson, at, false);
        std::string unit;
        if (unitOf(at, unit))
        {
            myJson.member("unit", unit);
        }
        myJson.key("default").boolean(at.ownItem() == nullptr && !at.rw().isDue() && !at.rw().inherited());
        myJson.endObject();
    }

    FindOptions const& myOptions;
    FindExpression& myExpression;
    std::vector<FindExpression::Path> myShown;
    ExpressionFault myFault;
    JsonWriter myJson;
    Places myPlaces;
    bool myHasFound = false;
};

int find(FindOptions const& options)
{
    ExpressionFault fault;
    std::unique_ptr<FindExpression> const expression = FindExpression::parse(options.expression, fault);
    if (expression == nullptr)
    {
        reportFault(options.expression, fault);
        return CouldNotRun;
    }
    std::vector<FindExpression::Path> shown;
    for (std::string const& keyword : options.keywords)
    {
        std::string why;
        shown.emplace_back();
        if (!KeywordPath::parse(keyword, shown.back().keywords, why))
        {
            std::fprintf(stderr, "zedparam: %s\n", why.c_str());
            return CouldNotRun;
        }
    }
    if (shown.empty())
    {
        shown = expression->paths();
    }
    Findings findings(Findings::Print::AtOnce);
    std::unique_ptr<Database> const database = Collection::openAny(options.database);
    if (database == nullptr)
    {
        return CouldNotRun;
    }
    int const exitCode = Search(options, *expression, std::move(shown)).run(*database);
    return exitCode == Fine && findings.has("cannot-open") ? HasFindings : exitCode;
}
} // namespace

void addFindCommand(CommandLine& line)
{
    auto const options = std::make_shared<FindOptions>();
    line.add("find", "The records that meet a condition.", [options] { return find(*options); })
        .required("DB", options->database, "The database file (.opd), or a collection (.params)")
        .required("EXPRESSION", options->expression,
                  "The condition, such as 'max-speed > 60 km/h and parameter-type = \"ground-vehicle-param\"'")
        .optional("KEYWORD", options->keywords, "Values to show; none: those that the condition names")
        .flag("--json", options->json, "Print JSON")
        .footer("Conditions: KEYWORD =, !=, <, <=, >, >= VALUE; KEYWORD ~ \"te*t\"; exists KEYWORD; specified "
                "KEYWORD;\nand, or, not, parentheses. A KEYWORD may be a path (systems/*/reload-time), @type, @name "
                "or @file;\na VALUE is a number with or without a unit, a text in quotes, true, false or another "
                "KEYWORD.");
}
