#pragma once

namespace CLI
{
class App;
}

/// What the process ends with.
enum ExitCode
{
    Fine = 0,
    HasFindings = 1, ///< findings, or nothing answers
    CouldNotRun = 2
};

/// Each adds one sub-command. When the command line calls it, it runs and leaves what it ended with in `exitCode`.
void addInfoCommand(CLI::App& app, int& exitCode);
void addListCommand(CLI::App& app, int& exitCode);
void addFindCommand(CLI::App& app, int& exitCode);
void addLookupCommand(CLI::App& app, int& exitCode);
void addWhyCommand(CLI::App& app, int& exitCode);
void addShowCommand(CLI::App& app, int& exitCode);
void addCheckCommand(CLI::App& app, int& exitCode);
void addSaveCommand(CLI::App& app, int& exitCode);
void addTypesCommand(CLI::App& app, int& exitCode);
void addExplainCommand(CLI::App& app, int& exitCode);
void addModelsCommand(CLI::App& app, int& exitCode);
void addConvertCommand(CLI::App& app, int& exitCode);
void addSchemaCommand(CLI::App& app, int& exitCode);
void addProbabilityCommand(CLI::App& app, int& exitCode);
void addPlotCommand(CLI::App& app, int& exitCode);
void addGraphCommand(CLI::App& app, int& exitCode);
void addReportCommand(CLI::App& app, int& exitCode);
void addSetCommand(CLI::App& app, int& exitCode);
void addUnsetCommand(CLI::App& app, int& exitCode);
void addFmtCommand(CLI::App& app, int& exitCode);
void addDiffCommand(CLI::App& app, int& exitCode);
void addMergeCommand(CLI::App& app, int& exitCode);
void addManualCommand(CLI::App& app, int& exitCode);
