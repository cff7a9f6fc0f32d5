#include <cstdio>
#include <exception>

#include "CommandLine.h"
#include "Commands.h"

int main(int argc, char** argv)
{
    try
    {
        CommandLine line("zedparam", "Reads, checks and saves parameter databases of simulated objects.",
                         "zedparam " ZEDOBJPARAM_VERSION,
                         "Object types are eight numbers, super type first (1:1:1:225:1:1:3:0), or seven.\n"
                         "Exit codes: 0 fine or same, 1 findings, different or no answer, 2 could not run.");
        addInfoCommand(line);
        addListCommand(line);
        addFindCommand(line);
        addLookupCommand(line);
        addWhyCommand(line);
        addShowCommand(line);
        addCheckCommand(line);
        addSaveCommand(line);
        addTypesCommand(line);
        addExplainCommand(line);
        addModelsCommand(line);
        addConvertCommand(line);
        addSchemaCommand(line);
        addProbabilityCommand(line);
        addPlotCommand(line);
        addGraphCommand(line);
        addReportCommand(line);
        addSetCommand(line);
        addUnsetCommand(line);
        addFmtCommand(line);
        addDiffCommand(line);
        addMergeCommand(line);
        addManualCommand(line);
        addCompleteCommand(line);
        int const exitCode = line.run(argc, argv);
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
