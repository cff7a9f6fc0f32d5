#include "DatabaseCommand.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "Commands.h"
#include "Database.h"
#include "Findings.h"

void addDatabaseCommand(CLI::App& app, int& exitCode, char const* name, char const* help,
                        int (*run)(std::string const& file, bool asJson))
{
    struct Options
    {
        std::string database;
        bool json = false;
    };
    auto const options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand(name, help);
    command->add_option("DB", options->database, "The database file (.opd)")->required();
    command->add_flag("--json", options->json, "Print JSON");
    command->callback([options, run, &exitCode] { exitCode = run(options->database, options->json); });
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
