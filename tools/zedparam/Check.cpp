#include "Commands.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <sys/resource.h>

#include "AxReadWholeFile.h"
#include "Codes.h"
#include "CommandLine.h"
#include "DatabaseCheck.h"
#include "FileCheck.h"
#include "Findings.h"
#include "Json.h"

namespace
{
struct CheckOptions
{
    std::string file;
    bool json = false;
    bool list = false;
    bool timing = false;
};

int list(bool asJson)
{
    if (asJson)
    {
        JsonWriter json;
        writeCodes(json);
        json.print();
    }
    else
    {
        printCodes();
    }
    return Fine;
}

std::string counted(std::size_t number, char const* one, char const* many)
{
    return std::to_string(number) + ' ' + (number == 1 ? one : many);
}

void print(std::string const& file, bool isDatabase, Checked const& checked, std::vector<AxDiagnostic> const& findings)
{
    for (AxDiagnostic const& finding : findings)
    {
        std::printf("%s\n", finding.format().c_str());
    }
    std::string const what =
        isDatabase ? counted(checked.entries, "entry", "entries") + ", " + counted(checked.tables, "table", "tables")
                   : file;
    std::printf("%s: %s\n", what.c_str(), counted(findings.size(), "finding", "findings").c_str());
}

void printJson(std::string const& file, bool isDatabase, Checked const& checked,
               std::vector<AxDiagnostic> const& findings)
{
    JsonWriter json;
    json.beginObject();
    if (isDatabase)
    {
        json.key("entries").integer(static_cast<long long>(checked.entries));
        json.key("tables").integer(static_cast<long long>(checked.tables));
    }
    else
    {
        json.member("file", file);
    }
    json.key("findings");
    Findings::write(json, findings);
    json.endObject().print();
}

void printTiming(double secondsReading)
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::fprintf(stderr, "processor: read records in %.3f s, all in %.3f s; at most %ld KiB\n", secondsReading,
                 processorSeconds(), usage.ru_maxrss);
}

int check(CheckOptions const& options)
{
    Findings findings(Findings::Print::Never);
    bool const isDatabase = isDatabaseFile(options.file);
    Checked checked;
    if (isDatabase)
    {
        checked = checkDatabase(options.file, findings);
    }
    else
    {
        checkFile(options.file, findings);
    }
    std::vector<AxDiagnostic> const sorted = findings.sorted();
    (options.json ? printJson : print)(options.file, isDatabase, checked, sorted);
    if (options.timing)
    {
        printTiming(checked.secondsReading);
    }
    return sorted.empty() ? Fine : HasFindings;
}

/// Whether the file can be opened and read at all; else a line on the standard error stream.
bool isReadable(std::string const& file)
{
    std::string text;
    int error = 0;
    bool const isRead = axReadWholeFile(AxFilename(file), text, error);
    if (!isRead)
    {
        std::fprintf(stderr, "%s:1:1: error: cannot read the file: %s [cannot-open]\n", file.c_str(),
                     std::strerror(error));
    }
    return isRead;
}

int run(CheckOptions const& options)
{
    if (options.list)
    {
        return list(options.json);
    }
    return isReadable(options.file) ? check(options) : CouldNotRun;
}
} // namespace

void addCheckCommand(CommandLine& line)
{
    auto const options = std::make_shared<CheckOptions>();
    line.add("check",
             "Checks a database with all its records and tables, or one file; prints every finding with its place.",
             [options] { return run(*options); })
        .optional("FILE", options->file,
                  "A database (.opd), a record (.ope), an entity file (.entity), a table (.hit, .det, .asl, .dmg, "
                  ".frm), a group of objects (.sog), a model set, a collection of records or a system definition")
        .flag("--list", options->list, "Print all codes of findings, with their meaning")
        .insteadOf("FILE")
        .flag("--json", options->json, "Print JSON")
        .flag("--timing", options->timing, "Tell the time and memory that it took on the standard error stream");
}
