#include "Commands.h"

#include <cstdio>
#include <string>
#include <vector>

#include "AxRwVariableBindings.h"
#include "Database.h"
#include "DatabaseCommand.h"
#include "Json.h"

namespace
{
struct Summary
{
    int version = 0;
    std::size_t entries = 0;
    std::size_t patterns = 0;
    std::size_t missing = 0;
    std::vector<std::string> variables;
};

Summary summarize(Database const& database)
{
    Summary summary;
    summary.version = database.versionNumber();
    for (AxSxpParameterDbEntry const* entry : database.entries())
    {
        ++summary.entries;
        summary.patterns += Database::isPattern(*entry);
        summary.missing += entry->foundFilename().isNull();
    }
    for (AxSxpParameterDb::VariableBindingsPtr const& bindings : database.variableBindings())
    {
        for (AxSymbolString const name : bindings->names())
        {
            summary.variables.push_back(name.string().string());
        }
    }
    return summary;
}

void printSummary(std::string const& file, Summary const& summary)
{
    std::printf("database   %s\nversion    %d\n", file.c_str(), summary.version);
    std::printf("entries    %zu: %zu exact, %zu patterns\n", summary.entries, summary.entries - summary.patterns,
                summary.patterns);
    std::printf("records    %zu found, %zu missing\n", summary.entries - summary.missing, summary.missing);
    std::printf("variables ");
    for (std::string const& name : summary.variables)
    {
        std::printf(" %s", name.c_str());
    }
    std::printf("%s\n", summary.variables.empty() ? " none" : "");
}

void printSummaryAsJson(std::string const& file, Summary const& summary)
{
    JsonWriter json;
    json.beginObject().member("database", file);
    json.key("version").integer(summary.version);
    json.key("entries").integer(static_cast<long long>(summary.entries));
    json.key("patterns").integer(static_cast<long long>(summary.patterns));
    json.key("missing").integer(static_cast<long long>(summary.missing));
    json.key("variables").beginArray();
    for (std::string const& name : summary.variables)
    {
        json.string(name);
    }
    json.endArray().endObject().print();
}

int info(std::string const& file, bool asJson)
{
    return printDatabase(file, [&](Database const& database)
                         { (asJson ? printSummaryAsJson : printSummary)(file, summarize(database)); });
}
} // namespace

void addInfoCommand(CommandLine& line)
{
    addDatabaseCommand(line, "info", "What a database holds, in numbers; no record is read.", info);
}
