#include "DatabaseCommand.h"

#include <memory>

#include "CommandLine.h"
#include "Commands.h"
#include "Database.h"
#include "Findings.h"

void addDatabaseCommand(CommandLine& line, char const* name, char const* help,
                        int (*run)(std::string const& file, bool asJson))
{
    struct Options
    {
        std::string database;
        bool json = false;
    };
    auto const options = std::make_shared<Options>();
    line.add(name, help, [options, run] { return run(options->database, options->json); })
        .required("DB", options->database, "The database file (.opd)")
        .flag("--json", options->json, "Print JSON");
}

int printDatabase(std::string const& file, std::function<void(Database const&)> const& print)
{
    Findings findings(Findings::Print::AtOnce);
    std::unique_ptr<Database> const database = Database::open(file);
    if (database == nullptr)
    {
        return CouldNotRun;
    }
    print(*database);
    return findings.empty() ? Fine : HasFindings;
}
