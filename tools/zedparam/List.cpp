#include "Commands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>

#include "Database.h"
#include "Findings.h"
#include "Json.h"

namespace
{
char const* kindOf(AxSxpParameterDbEntry const& entry)
{
    return Database::isPattern(entry) ? "pattern" : "exact";
}

void printText(Database const& database)
{
    std::size_t width = 0;
    for (AxSxpParameterDbEntry const* entry : database.entries())
    {
        width = std::max(width, entry->objectType().string().length());
    }
    for (AxSxpParameterDbEntry const* entry : database.entries())
    {
        std::printf("%-*s  %-7s  %s\n", static_cast<int>(width), entry->objectType().string().c_str(), kindOf(*entry),
                    entry->filename().c_str());
    }
}

void printJson(Database const& database)
{
    JsonWriter json;
    json.beginArray();
    for (AxSxpParameterDbEntry const* entry : database.entries())
    {
        json.beginObject();
        json.member("type", entry->objectType().string().string());
        json.member("kind", kindOf(*entry));
        json.member("file", entry->filename().view());
        json.endObject();
    }
    json.endArray().print();
}
} // namespace

void addListCommand(CLI::App& app, int& exitCode)
{
    struct Options
    {
        std::string database;
        bool json = false;
    };
    auto const options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("list", "All entries: type, exact or pattern, record file.");
    command->add_option("DB", options->database, "The database file (.opd)")->required();
    command->add_flag("--json", options->json, "Print JSON");
    command->callback(
        [options, &exitCode]
        {
            Findings findings(Findings::Print::AtOnce);
            std::unique_ptr<Database> const database = Database::open(options->database);
            if (database == nullptr)
            {
                exitCode = CouldNotRun;
                return;
            }
            (options->json ? printJson : printText)(*database);
            exitCode = findings.empty() ? Fine : HasFindings;
        });
}
