#pragma once

class CommandLine;

/// What the process ends with.
enum ExitCode
{
    Fine = 0,
    HasFindings = 1, ///< findings, or nothing answers
    CouldNotRun = 2
};

// Each adds one sub-command.
void addInfoCommand(CommandLine& line);
void addListCommand(CommandLine& line);
void addFindCommand(CommandLine& line);
void addLookupCommand(CommandLine& line);
void addWhyCommand(CommandLine& line);
void addShowCommand(CommandLine& line);
void addCheckCommand(CommandLine& line);
void addSaveCommand(CommandLine& line);
void addTypesCommand(CommandLine& line);
void addExplainCommand(CommandLine& line);
void addModelsCommand(CommandLine& line);
void addConvertCommand(CommandLine& line);
void addSchemaCommand(CommandLine& line);
void addProbabilityCommand(CommandLine& line);
void addPlotCommand(CommandLine& line);
void addGraphCommand(CommandLine& line);
void addReportCommand(CommandLine& line);
void addSetCommand(CommandLine& line);
void addUnsetCommand(CommandLine& line);
void addFmtCommand(CommandLine& line);
void addDiffCommand(CommandLine& line);
void addMergeCommand(CommandLine& line);
void addManualCommand(CommandLine& line);
void addCompleteCommand(CommandLine& line);
