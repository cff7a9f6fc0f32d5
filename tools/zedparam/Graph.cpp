#include "Commands.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <string>

#include "Answer.h"
#include "AxComponentSystemDefinition.h"
#include "AxZedObjectParameters.h"
#include "Database.h"
#include "Dot.h"
#include "Findings.h"
#include "SystemGraph.h"
#include "Tables.h"
#include "WriteFile.h"

namespace
{
struct Options
{
    std::string file;
    std::string type;
    std::string output;
    bool dot = false;
};

/// Answers an exit code; unless that is Fine or HasFindings, a line was printed.
int readGraph(Options const& options, SystemGraph& graph)
{
    if (!options.type.empty())
    {
        Answer answer;
        int const exitCode = ask(options.file, options.type, answer);
        if (answer.record == nullptr)
        {
            return exitCode == Fine ? HasFindings : exitCode;
        }
        graph = graphOf(*answer.record);
        return Fine;
    }
    if (AxFilename(options.file).extension() == AxString("opd"))
    {
        std::fprintf(stderr, "zedparam: %s is a database; expected an object type behind it\n", options.file.c_str());
        return CouldNotRun;
    }
    Database::openNone();
    AxComponentSystemDefinition definition(AxComponentSystemDefinition::elementWord(), nullptr);
    if (!loadTable(options.file, definition))
    {
        return CouldNotRun;
    }
    graph = graphOf(definition, AxFilename(options.file).stripPath().string().string());
    return Fine;
}

int drawGraph(Options const& options)
{
    Findings findings(Findings::Print::AtOnce);
    SystemGraph graph;
    int const exitCode = readGraph(options, graph);
    if (exitCode != Fine)
    {
        return exitCode;
    }
    if (options.output.empty())
    {
        std::fputs((options.dot ? graphDot(graph) : graphText(graph)).c_str(), stdout);
        return findings.empty() ? Fine : HasFindings;
    }
    std::string drawn = graphDot(graph);
    if (!options.dot && !drawDot(drawn, drawn))
    {
        std::fprintf(stderr, "zedparam: an SVG file needs the command dot, which cannot be run; Debian's package "
                             "graphviz has it\n");
        return CouldNotRun;
    }
    if (!writeFile(options.output, drawn))
    {
        return CouldNotRun;
    }
    return findings.empty() ? Fine : HasFindings;
}
} // namespace

void addGraphCommand(CLI::App& app, int& exitCode)
{
    auto const options = std::make_shared<Options>();
    CLI::App* command =
        app.add_subcommand("graph", "The systems and components of an object, and how they are connected.");
    command->add_option("FILE", options->file, "A database (.opd), or a component system (.sys)")->required();
    command->add_option("TYPE", options->type, "In a database: the object type, such as 1:1:1:225:1:1:3:0");
    command->add_flag("--dot", options->dot, "In the language of Graphviz instead of an outline or picture");
    command->add_option("-o,--output", options->output, "Write an SVG file, or with --dot its text");
    command->callback([options, &exitCode] { exitCode = drawGraph(*options); });
}
