#include "Commands.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "AxReadWholeFile.h"
#include "CommandLine.h"
#include "Database.h"
#include "Findings.h"
#include "RecordFile.h"
#include "TextLayout.h"
#include "UnifiedDiff.h"
#include "WriteFile.h"
#include "XmlLayout.h"

namespace
{
struct FmtOptions
{
    std::vector<std::string> files;
    bool check = false;
    bool diff = false;
};

constexpr char const* theStandardInput = "-";

bool readInput(std::string const& file, std::string& text)
{
    int error = 0;
    if (file == theStandardInput)
    {
        text.assign(std::istreambuf_iterator<char>(std::cin), {});
        return true;
    }
    if (!axReadWholeFile(AxFilename(file), text, error))
    {
        std::fprintf(stderr, "zedparam: cannot read \"%s\": %s\n", file.c_str(), std::strerror(error));
        return false;
    }
    return true;
}

/// What the library reports of the objects in an entity file.
std::vector<AxDiagnostic> findingsOfObjects(std::string const& file)
{
    Findings findings(Findings::Print::Never);
    if (file.ends_with(".entity"))
    {
        readRecords(file, {}, *Database::openNone());
    }
    return findings.sorted();
}

/// False, after a line that says why, when the file is not formatted. `errors` are those that the library reports of
/// it; they hinder nobody from laying it out.
bool layOut(std::string const& file, std::string const& text, std::string& out, std::vector<AxDiagnostic>& errors)
{
    if (isXml(text))
    {
        Findings findings(Findings::Print::AtOnce);
        std::string reason;
        if (!laidOutXml(file, text, out, reason))
        {
            std::fprintf(stderr, "zedparam: \"%s\" is left as it is: %s\n", file.c_str(), reason.c_str());
            return false;
        }
        errors = Findings::errorsAmong(findingsOfObjects(file));
        return true;
    }
    TextTree const tree(text);
    if (!tree.isReadable())
    {
        AxDiagnostic fault = tree.faults().front().diagnostic();
        fault.file = file;
        std::fprintf(stderr, "%s\n", fault.format().c_str());
        return false;
    }
    if (!tree.root())
    {
        std::fprintf(stderr, "%s:1:1: error: the file holds nothing to lay out [empty-file]\n", file.c_str());
        return false;
    }
    if (!tree.root().isList())
    {
        auto const [line, column] = tree.root().place();
        AxDiagnostic fault{.code = "not-a-list", .file = file, .line = line, .column = column};
        fault.text = "expected a list (name item...), found " + std::string(tree.root().source().substr(0, 40));
        std::fprintf(stderr, "%s\n", fault.format().c_str());
        return false;
    }
    TextReading reading(file);
    out = laidOut(tree, reading);
    errors = Findings::errorsAmong(reading.findingsOfFile());
    if (!haveSameContent(tree, TextTree(out)))
    {
        std::fprintf(stderr, "zedparam: \"%s\" is left as it is: it would not read back the same\n", file.c_str());
        return false;
    }
    return true;
}

int format(std::string const& file, FmtOptions const& options)
{
    std::string text;
    std::string out;
    std::vector<AxDiagnostic> errors;
    if (!readInput(file, text) || !layOut(file, text, out, errors))
    {
        return CouldNotRun;
    }
    Findings::print(errors);
    int const asFound = errors.empty() ? Fine : HasFindings;
    bool const isReport = options.check || options.diff;
    if (options.diff)
    {
        std::fputs(unifiedDiff(file, text, out).c_str(), stdout);
    }
    else if (options.check && out != text)
    {
        auto const [stop, ignored] = std::ranges::mismatch(text, out);
        std::printf("%s:%td:1: is not formatted\n", file.c_str(), std::count(text.begin(), stop, '\n') + 1);
    }
    else if (!options.check && file == theStandardInput)
    {
        std::fwrite(out.data(), 1, out.size(), stdout);
        return asFound;
    }
    if (isReport || out == text)
    {
        return isReport && out != text ? HasFindings : asFound;
    }
    if (!writeFile(file, out))
    {
        return CouldNotRun;
    }
    std::printf("formatted %s\n", file.c_str());
    return asFound;
}

/// What went worst.
int formatAll(FmtOptions const& options)
{
    int exitCode = Fine;
    for (std::string const& file : options.files)
    {
        exitCode = std::max(exitCode, format(file, options));
    }
    return exitCode;
}
} // namespace

void addFmtCommand(CommandLine& line)
{
    auto const options = std::make_shared<FmtOptions>();
    line.add("fmt", "Lays files out as the library writes them; comments and what is not known stay.",
             [options] { return formatAll(*options); })
        .required("FILE", options->files, "Parameter text or XML; - reads standard input and writes standard output")
        .flag("--check", options->check, "Write nothing; name the files that would change")
        .flag("--diff", options->diff, "Write nothing; show what would change")
        .footer("Exit codes: 0 fine, 1 not formatted (--check, --diff) or not readable in all of its items, 2 could "
                "not run.");
}
