#include <cstdio>
#include <memory>
#include <string>

#include "CommandLine.h"
#include "Commands.h"
#include "Database.h"
#include "DiffDatabases.h"
#include "DocumentDiff.h"
#include "Findings.h"

namespace
{
struct DiffArguments
{
    std::string files[2];
    std::string database;
    DiffOptions how;
    bool json = false;
};

bool isDatabase(std::string const& file)
{
    return file.ends_with(AxSxpParameterDb::opdFilenameExtension().string());
}

/// False after reports when it could not run.
bool compare(DiffArguments const& options, DiffReport& report)
{
    if (isDatabase(options.files[0]) && isDatabase(options.files[1]))
    {
        return compareDatabases(options.files[0], options.files[1], options.how, report);
    }
    return compareFiles({}, options.files[0], options.files[1], options.database, options.how, report);
}

int diff(DiffArguments const& options)
{
    Findings findings(Findings::Print::Never);
    JsonWriter json;
    if (options.json)
    {
        json.beginObject().member("a", options.files[0]).member("b", options.files[1]);
        json.key("differences").beginArray();
    }
    DiffReport report(options.json ? &json : nullptr);
    bool const isComplete = compare(options, report) && !findings.has("cannot-open");
    for (AxDiagnostic const& finding : findings.sorted())
    {
        if (!isComplete && finding.severity == AxSeverity::Error)
        {
            std::fprintf(stderr, "%s\n", finding.format().c_str());
        }
    }
    if (options.json)
    {
        json.endArray().key("complete").boolean(isComplete).endObject().print();
    }
    return !isComplete ? CouldNotRun : report.empty() ? Fine : HasFindings;
}
} // namespace

void addDiffCommand(CommandLine& line)
{
    auto const options = std::make_shared<DiffArguments>();
    line.add("diff", "What tells two records, tables, definitions or databases apart: a line for each difference.",
             [options] { return diff(*options); })
        .required("A", options->files[0], "A file of any kind, or a database (.opd)")
        .required("B", options->files[1], "Its other version; a record may stand in another notation")
        .optional("--tolerance", options->how.tolerance, "Numbers are equal that differ by this part of the larger")
        .notNegative()
        .flag("--defaults", options->how.defaults, "What is not there counts as its default")
        .optional("--database", options->database, "The database that binds the variables of record files")
        .flag("--json", options->json, "Print JSON")
        .footer("Exit codes: 0 the same, 1 different, 2 could not run.");
}
