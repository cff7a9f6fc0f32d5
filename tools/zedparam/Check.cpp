#include "Commands.h"

#include <cstdio>
#include <memory>
#include <string>

#include "AxZedObjectParameters.h"
#include "Database.h"
#include "DatabaseCommand.h"
#include "Findings.h"
#include "Json.h"
#include "RecordCheck.h"
#include "Tables.h"

namespace
{
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
                checkRecord(Database::fileOf(*entry), *record, findings);
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
    addDatabaseCommand(app, exitCode, "check",
                       "Reads every record and the tables beside the database; prints every finding with its place.",
                       check);
}
