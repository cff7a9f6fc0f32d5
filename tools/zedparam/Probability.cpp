#include "Commands.h"

#include <cstdio>
#include <memory>
#include <string>

#include "AxNumberText.h"
#include "CommandLine.h"
#include "Findings.h"
#include "Json.h"
#include "RecordJson.h"
#include "ShownPath.h"
#include "TableFile.h"
#include "TableQuery.h"
#include "TypeArgument.h"
#include "Units.h"

namespace
{
struct ProbabilityOptions
{
    std::string file;
    std::string table;
    std::string type;
    std::string munition;
    std::string surface;
    std::string angle;
    std::string range;
    bool isCollateral = false;
    bool json = false;
};

/// Reads a number with a unit behind it, or without for one in `usual`; false after a line.
bool readQuantity(char const* option, std::string const& text, char const* usual, double& out)
{
    std::size_t const end = numberEnd(text);
    Unit const& own = *unitNamed(usual);
    Unit const* const unit = unitNamed(end != text.size() ? std::string_view(text).substr(end) : usual);
    double number = 0.0;
    bool const isNumber = axParseReal(std::string_view(text).substr(0, end), number) && number >= 0.0;
    if (isNumber && unit != nullptr && std::string_view(unit->base) == own.base)
    {
        out = unit == &own ? number : inFileUnit(number, *unit) / own.factor;
        return true;
    }
    std::fprintf(stderr, "zedparam: %s \"%s\": expected a number, 0 or more, in %s, such as 1.5%s\n", option,
                 text.c_str(), unitsOf(own.base).c_str(), usual);
    return false;
}

bool readMunition(std::string const& text, AxSimMunition& munition)
{
    AxObjectType type;
    if (AxObjectType::fromString(text, type))
    {
        munition.setMunitionType(type);
        return true;
    }
    if (text.find(':') != std::string::npos)
    {
        TypeArgument ignored;
        return readType(text, ignored);
    }
    munition.setMunitionName(text);
    return true;
}

/// False after a line.
bool readQuestion(ProbabilityOptions const& options, TableQuestion& question)
{
    TypeArgument type;
    if (!options.type.empty())
    {
        if (!readType(options.type, type))
        {
            return false;
        }
        question.type = type.type.entityType();
    }
    if (!options.munition.empty() && !readMunition(options.munition, question.munition.emplace()))
    {
        return false;
    }
    if (!options.surface.empty())
    {
        question.surface = options.surface;
    }
    question.isCollateral = options.isCollateral;
    return (options.angle.empty() || readQuantity("--angle", options.angle, "deg", question.angle.emplace())) &&
           (options.range.empty() || readQuantity("--range", options.range, "m", question.range.emplace()));
}

void printText(TableAnswer const& answer)
{
    for (TableStep const& step : answer.steps)
    {
        std::string text = step.value;
        text.append(step.match.empty() ? "" : " (" + step.match + ")")
            .append(step.words.empty() ? "" : ", " + step.words);
        std::printf("%-10s%s  [%s:%u:%u]\n", step.part.c_str(), text.c_str(), shownPath(step.file).c_str(), step.line,
                    step.column);
    }
    for (AxRwReal const* outcome : answer.outcomes)
    {
        std::printf("%-20s%s\n", outcome->name().c_str(), tidied(outcome->value()).c_str());
    }
    for (AxSimMunition const* munition : answer.munitions)
    {
        std::printf("munition  %s  %s\n", munition->munitionType().string().c_str(), munition->munitionName().c_str());
    }
    if (answer.priority)
    {
        std::printf("priority  %d\n", *answer.priority);
    }
}
void printJson(TableFile const& table, TableAnswer& answer)
{
    JsonWriter json;
    json.beginObject().member("file", shownPath(table.file())).member("table", table.name());
    json.key("answers").boolean(answer.miss.empty());
    for (TableStep const& step : answer.steps)
    {
        json.key(step.part).beginObject().member("value", step.value);
        if (!step.match.empty())
        {
            json.member("match", step.match);
        }
        for (auto const& [name, value] : step.numbers)
        {
            json.key(name).real(value);
        }
        json.member("file", shownPath(step.file));
        json.key("line").integer(step.line).key("column").integer(step.column).endObject();
    }
    if (!answer.miss.empty())
    {
        json.member("miss", answer.miss);
    }
    else if (table.kind() == TableKind::Ammunition)
    {
        json.key("munitions");
        writeJson(json, answer.munitions, false);
    }
    else if (answer.priority)
    {
        json.key("priority").integer(*answer.priority);
    }
    else
    {
        json.key("outcomes").beginObject();
        for (AxRwReal const* outcome : answer.outcomes)
        {
            json.key(outcome->name().view()).real(outcome->value());
        }
        json.endObject();
    }
    json.endObject().print();
}

int probability(ProbabilityOptions const& options)
{
    Findings const findings(Findings::Print::AtOnce);
    TableQuestion question;
    if (!readQuestion(options, question))
    {
        return CouldNotRun;
    }
    std::unique_ptr<TableFile> const table = TableFile::open(options.file, options.table);
    if (table == nullptr)
    {
        return CouldNotRun;
    }
    if (!table->isNamed(options.table))
    {
        std::fprintf(stderr, "zedparam: --table: %s is one table, \"%s\", not \"%s\"\n", options.file.c_str(),
                     table->name().c_str(), options.table.c_str());
        return CouldNotRun;
    }
    std::string const missing = missingOptions(table->kind(), question);
    std::string const idle = idleOptions(table->kind(), question);
    if (!missing.empty() || !idle.empty())
    {
        std::fprintf(stderr, "zedparam: %s holds %s, which %s %s\n", options.file.c_str(), nameOf(table->kind()),
                     missing.empty() ? "has no use for" : "also needs",
                     missing.empty() ? idle.c_str() : missing.c_str());
        return CouldNotRun;
    }
    TableAnswer answer = askTable(*table, question);
    options.json ? printJson(*table, answer) : printText(answer);
    if (!answer.miss.empty() && !options.json)
    {
        std::fprintf(stderr, "zedparam: %s: %s\n", options.file.c_str(), answer.miss.c_str());
    }
    return answer.miss.empty() ? Fine : HasFindings; // what is told of other elements does not count
}
} // namespace

void addProbabilityCommand(CommandLine& line)
{
    auto const options = std::make_shared<ProbabilityOptions>();
    line.add("probability", "Asks a table as the engine does, and shows what answers.",
             [options] { return probability(*options); })
        .required("FILE", options->file,
                  "A table file (.hit, .det, .dmg, .asl), or a record or system with a table inside")
        .optional("--table", options->table, "Which table of the file, by its keyword, when there are several")
        .optional("--type", options->type,
                  "Object type of the target; for hit, detection and ammunition tables and target priorities")
        .optional("--range", options->range,
                  "Distance in m, or with a unit (1.2km); for damage tables that of the miss")
        .optional("--angle", options->angle,
                  "Angle of incidence in degrees, or with a unit (25deg, 0.44rad); for damage tables")
        .optional("--surface", options->surface, "Surface that is hit, such as front; for damage tables")
        .optional("--munition", options->munition,
                  "Type or name of the munition; for munition tables, which name damage tables")
        .flag("--collateral", options->isCollateral,
              "Ask what a detonation nearby does, rather than a hit; for munition tables")
        .flag("--json", options->json, "Print JSON");
}
