#include "Commands.h"

#include <CLI/CLI.hpp>
#include <cmath>
#include <cstdio>
#include <memory>
#include <string>

#include "AxNumberText.h"
#include "AxRecursiveReaderWriterIterator.h"
#include "AxRwInt.h"
#include "AxRwReal.h"
#include "AxRwUnsigned.h"
#include "AxZedObjectParameters.h"
#include "Database.h"
#include "Findings.h"
#include "Json.h"
#include "Tables.h"

namespace
{
AxDiagnostic warning(char const* code, std::string file, std::string text)
{
    AxDiagnostic finding;
    finding.severity = AxSeverity::Warning;
    finding.code = code;
    finding.file = std::move(file);
    finding.text = std::move(text);
    return finding;
}

/// False for what is no number.
bool numberIn(AxReaderWriter const& rw, double& value)
{
    if (auto const* real = dynamic_cast<AxRwReal const*>(&rw))
    {
        value = real->value();
        return true;
    }
    if (auto const* integer = dynamic_cast<AxRwInt const*>(&rw))
    {
        value = integer->value();
        return true;
    }
    if (auto const* number = dynamic_cast<AxRwUnsigned const*>(&rw))
    {
        value = number->value();
        return true;
    }
    return false;
}

std::string placeOf(AxReaderWriter const& rw)
{
    std::string place = "\"" + rw.name().string().string() + "\"";
    AxReaderWriterRegistry const* registry = rw.parentRegistry();
    if (registry != nullptr && registry->owner() != nullptr && !registry->owner()->name().isNull())
    {
        place += " of \"" + registry->owner()->name().string().string() + "\"";
    }
    return place;
}

std::string rangeText(AxRange const& range)
{
    std::string text;
    if (range.low != -axUnbounded)
    {
        axAppendReal(text, range.low);
        text += range.high != axUnbounded ? " to " : " or more";
    }
    else
    {
        text += "at most ";
    }
    if (range.high != axUnbounded)
    {
        axAppendReal(text, range.high);
    }
    return text;
}

void checkRanges(std::string const& file, AxZedObjectParameters& record, Findings& findings)
{
    AxRecursiveReaderWriterIterator all(*record.registry());
    for (AxReaderWriter const* rw = all.first(); rw != nullptr; rw = all.next())
    {
        AxKeyword const* const description = rw->description();
        double value = 0.0;
        if (description == nullptr || !rw->valueSpecified() || !numberIn(*rw, value))
        {
            continue;
        }
        if (std::isnan(value) || (description->range.isBounded() && !description->range.contains(value)))
        {
            std::string text = placeOf(*rw) + " is ";
            axAppendReal(text, value);
            findings.add(warning("out-of-range", file, text + ", expected " + rangeText(description->range)));
        }
    }
}

void checkVariables(std::string const& file, AxZedObjectParameters const& record, Findings& findings)
{
    for (auto const& [name, value] : record.unboundVariables())
    {
        findings.add(warning("unbound-variable", file, "nothing binds the variable \"" + name.string() + "\""));
    }
}

int check(std::string const& file, bool asJson)
{
    Findings findings(Findings::Print::Never);
    std::unique_ptr<Database> const database = Database::open(file);
    std::size_t tables = 0;
    std::size_t entries = 0;
    if (database != nullptr)
    {
        database->readRecords("checking records");
        for (AxSxpParameterDbEntry* entry : database->entries())
        {
            ++entries;
            if (AxZedObjectParameters* record = entry->parameters())
            {
                checkRanges(Database::fileOf(*entry), *record, findings);
                checkVariables(Database::fileOf(*entry), *record, findings);
            }
        }
        tables = checkTables(tableFiles(*database), findings);
    }
    std::vector<AxDiagnostic> const& sorted = findings.sorted();
    if (asJson)
    {
        JsonWriter json;
        json.beginObject();
        json.key("entries").integer(static_cast<long long>(entries));
        json.key("tables").integer(static_cast<long long>(tables));
        json.key("findings");
        Findings::write(json, sorted);
        json.endObject().print();
    }
    else
    {
        for (AxDiagnostic const& finding : sorted)
        {
            std::printf("%s\n", finding.format().c_str());
        }
        auto const plural = [](std::size_t number) { return number == 1 ? "" : "s"; };
        std::printf("%zu %s, %zu table%s: %zu finding%s\n", entries, entries == 1 ? "entry" : "entries", tables,
                    plural(tables), sorted.size(), plural(sorted.size()));
    }
    return database == nullptr ? CouldNotRun : sorted.empty() ? Fine : HasFindings;
}
} // namespace

void addCheckCommand(CLI::App& app, int& exitCode)
{
    struct Options
    {
        std::string database;
        bool json = false;
    };
    auto const options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand(
        "check", "Reads every record and the tables beside the database; prints every finding with its place.");
    command->add_option("DB", options->database, "The database file (.opd)")->required();
    command->add_flag("--json", options->json, "Print JSON");
    command->callback([options, &exitCode] { exitCode = check(options->database, options->json); });
}
