#include <cstdio>
#include <memory>
#include <string>

#include "CommandLine.h"
#include "Commands.h"
#include "Json.h"
#include "ReadFile.h"
#include "ShownPath.h"
#include "TextMerge.h"
#include "WriteFile.h"

namespace
{
struct MergeArguments
{
    std::string base;
    std::string ours;
    std::string theirs;
    std::string output;
    std::string path;
    MergeOptions how;
    bool json = false;
};

void printJson(std::string const& name, std::vector<MergeConflict> const& conflicts)
{
    JsonWriter json;
    json.beginObject().member("file", name).key("conflicts").beginArray();
    for (MergeConflict const& conflict : conflicts)
    {
        json.beginObject().member("path", conflict.path).member("reason", conflict.reason);
        json.key("line").integer(conflict.line).endObject();
    }
    json.endArray().endObject().print();
}

int merge(MergeArguments const& options)
{
    std::string base;
    std::string ours;
    std::string theirs;
    if (!readFile(options.base, base) || !readFile(options.ours, ours) || !readFile(options.theirs, theirs))
    {
        return CouldNotRun;
    }
    MergeResult const result = mergeTexts(base, ours, theirs, options.how);
    std::string const target = options.output.empty() ? options.ours : options.output;
    if ((!options.output.empty() || result.text != ours) && !writeFile(target, result.text))
    {
        return CouldNotRun;
    }
    std::string const name = options.path.empty() ? shownPath(target) : options.path;
    if (options.json)
    {
        printJson(name, result.conflicts);
        return result.conflicts.empty() ? Fine : HasFindings;
    }
    for (MergeConflict const& conflict : result.conflicts)
    {
        std::printf("%s:%u:1: conflict: %s%s%s\n", name.c_str(), conflict.line, conflict.path.c_str(),
                    conflict.path.empty() ? "" : ": ", conflict.reason.c_str());
    }
    return result.conflicts.empty() ? Fine : HasFindings;
}
} // namespace

void addMergeCommand(CommandLine& line)
{
    auto const options = std::make_shared<MergeArguments>();
    line.add("merge",
             "Brings what was changed from BASE to THEIRS into OURS, keyword by keyword; serves git as merge driver.",
             [options] { return merge(*options); })
        .required("BASE", options->base, "The version that both began with; may be empty")
        .required("OURS", options->ours, "The version to change")
        .required("THEIRS", options->theirs, "The version to bring in")
        .optional("-o,--output", options->output, "The file to write; none: OURS")
        .optional("--path", options->path, "What the file is called in messages")
        .optional("--marker-size", options->how.markerSize, "Length of the marks around a conflict")
        .between(1, 1000)
        .showDefault()
        .optional("--ours-label", options->how.ours, "Stands at the beginning of a conflict")
        .optional("--theirs-label", options->how.theirs, "Stands at the end of a conflict")
        .flag("--json", options->json, "Print JSON")
        .footer("Exit codes: 0 merged, 1 with conflicts between lines of marks, 2 could not run.");
}
