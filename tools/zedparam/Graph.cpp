#include "Commands.h"

#include <cstdio>
#include <memory>
#include <string>

#include "Answer.h"
#include "AxComponentSystemDefinition.h"
#include "AxZedObjectParameters.h"
#include "CommandLine.h"
#include "Database.h"
#include "Dot.h"
#include "Findings.h"
#include "RecordFile.h"
#include "SystemGraph.h"
#include "Tables.h"
#include "WriteFile.h"

namespace
{
struct GraphOptions
{
    std::string file;
    std::string type;
    std::string database;
    std::string object;
    std::string output;
    bool dot = false;
};

int readRecordGraph(GraphOptions const& options, SystemGraph& graph)
{
    std::unique_ptr<Database> const database =
        options.database.empty() ? Database::openNone() : Database::open(options.database);
    if (database == nullptr)
    {
        return CouldNotRun;
    }
    Records const records = readRecords(options.file, options.object, *database);
    if (records.size() != 1)
    {
        std::fprintf(stderr, "zedparam: %s holds %s\n", options.file.c_str(),
                     records.empty() ? "no such record" : "several objects; name one with --object");
        return CouldNotRun;
    }
    graph = graphOf(*records.front());
    return Fine;
}

/// Answers an exit code; unless that is Fine or HasFindings, a line was printed.
int readGraph(GraphOptions const& options, SystemGraph& graph)
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
    AxString const extension = AxFilename(options.file).extension();
    if (extension == "ope" || extension == "entity")
    {
        return readRecordGraph(options, graph);
    }
    if (extension == "opd")
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

int drawGraph(GraphOptions const& options)
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
    if (!writeMade(options.output, drawn, {&options.file, 1}))
    {
        return CouldNotRun;
    }
    return findings.empty() ? Fine : HasFindings;
}
} // namespace

void addGraphCommand(CommandLine& line)
{
    auto const options = std::make_shared<GraphOptions>();
    line.add("graph", "The systems and components of an object, and how they are connected.",
             [options] { return drawGraph(*options); })
        .required("FILE", options->file, "A database (.opd), a record (.ope, .entity), or a component system (.sys)")
        .optional("TYPE", options->type, "In a database: the object type, such as 1:1:1:225:1:1:3:0")
        .optional("--database", options->database, "Of a record: the database that binds its variables")
        .optional("--object", options->object, "Of an entity file: which object, by name")
        .flag("--dot", options->dot, "In the language of Graphviz instead of an outline or picture")
        .optional("-o,--output", options->output, "Write an SVG file, or with --dot its text");
}
