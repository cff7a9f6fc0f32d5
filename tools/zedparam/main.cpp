#include "Commands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <string_view>
#include <vector>

#include "AxNearest.h"

namespace
{
/// False, and a line on the standard error stream, when the first word is no sub-command.
bool namesSubcommand(CLI::App const& app, std::string_view word)
{
    std::vector<std::string_view> known;
    for (CLI::App const* command : app.get_subcommands([](CLI::App const*) { return true; }))
    {
        known.push_back(command->get_name());
    }
    if (word.starts_with('-') || std::ranges::find(known, word) != known.end())
    {
        return true;
    }
    std::fprintf(stderr, "zedparam: unknown command \"%s\"", std::string(word).c_str());
    if (std::string_view const nearest = axNearest(word, known); !nearest.empty())
    {
        std::fprintf(stderr, "; did you mean \"%s\"?", std::string(nearest).c_str());
    }
    std::fprintf(stderr, "\nzedparam --help lists the commands\n");
    return false;
}

int run(int argc, char** argv)
{
    CLI::App app("Reads, checks and saves parameter databases of simulated objects.", "zedparam");
    app.set_version_flag("--version", "zedparam " ZEDOBJPARAM_VERSION);
    app.require_subcommand(1);
    app.failure_message(CLI::FailureMessage::simple);
    app.footer("Object types are eight numbers, super type first (1:1:1:225:1:1:3:0), or seven.\n"
               "Exit codes: 0 fine or same, 1 findings, different or no answer, 2 could not run.");

    int exitCode = Fine;
    addInfoCommand(app, exitCode);
    addListCommand(app, exitCode);
    addFindCommand(app, exitCode);
    addLookupCommand(app, exitCode);
    addWhyCommand(app, exitCode);
    addShowCommand(app, exitCode);
    addCheckCommand(app, exitCode);
    addSaveCommand(app, exitCode);
    addTypesCommand(app, exitCode);
    addExplainCommand(app, exitCode);
    addModelsCommand(app, exitCode);
    addConvertCommand(app, exitCode);
    addSchemaCommand(app, exitCode);
    addProbabilityCommand(app, exitCode);
    addPlotCommand(app, exitCode);
    addGraphCommand(app, exitCode);
    addReportCommand(app, exitCode);
    addSetCommand(app, exitCode);
    addUnsetCommand(app, exitCode);
    addFmtCommand(app, exitCode);
    addDiffCommand(app, exitCode);
    addMergeCommand(app, exitCode);
    addManualCommand(app, exitCode);

    if (argc > 1 && !namesSubcommand(app, argv[1]))
    {
        return CouldNotRun;
    }
    try
    {
        app.parse(argc, argv);
    }
    catch (CLI::ParseError const& error)
    {
        return app.exit(error) == 0 ? Fine : CouldNotRun;
    }
    return exitCode;
}
} // namespace

int main(int argc, char** argv)
{
    try
    {
        int const exitCode = run(argc, argv);
        if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
        {
            std::perror("zedparam: standard output");
            return CouldNotRun;
        }
        return exitCode;
    }
    catch (std::exception const& fault)
    {
        std::fprintf(stderr, "zedparam: %s\n", fault.what());
        return CouldNotRun;
    }
}
