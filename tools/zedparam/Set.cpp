#include "Commands.h"

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "CommandLine.h"
#include "Findings.h"
#include "Json.h"
#include "OpenEditor.h"
#include "PathText.h"
#include "ReadFile.h"
#include "WriteFile.h"

namespace
{
struct SetOptions
{
    std::string file;
    std::vector<std::string> edits;
    std::string database;
    std::string object;
    bool force = false;
    bool dryRun = false;
    bool json = false;
};

void printJson(SetOptions const& options, std::vector<FileEditor::Change> const& changes,
               std::vector<AxDiagnostic> const& findings)
{
    auto const text = [](JsonWriter& json, char const* key, std::string const& value)
    {
        json.key(key);
        value.empty() ? json.null() : json.string(value);
    };
    JsonWriter json;
    json.beginObject().member("file", options.file);
    json.key("written").boolean(!options.dryRun && !changes.empty());
    json.key("changes").beginArray();
    for (FileEditor::Change const& change : changes)
    {
        json.beginObject().member("path", change.path);
        json.key("line").integer(change.line).key("column").integer(change.column);
        text(json, "before", change.before);
        text(json, "after", change.after);
        json.endObject();
    }
    json.endArray().key("findings");
    Findings::write(json, findings);
    json.endObject().print();
}

/// All edits or none.
int edit(SetOptions const& options, bool (*apply)(FileEditor& editor, std::string const& edit))
{
    std::string text;
    if (!readFile(options.file, text))
    {
        return CouldNotRun;
    }
    OpenEditor const opened(options.file, text, options.database, options.object, options.force);
    if (opened.editor() == nullptr)
    {
        return CouldNotRun;
    }
    FileEditor& editor = *opened.editor();
    for (std::string const& each : options.edits)
    {
        if (!apply(editor, each))
        {
            if (options.json)
            {
                printJson(options, {}, {editor.fault()});
            }
            else
            {
                std::fprintf(stderr, "%s\n", editor.fault().format().c_str());
            }
            return CouldNotRun;
        }
    }
    if (!options.dryRun && editor.text() != text && !writeFile(options.file, editor.text()))
    {
        return CouldNotRun;
    }
    std::vector<AxDiagnostic> const errors = Findings::errorsAmong(editor.findings());
    if (options.json)
    {
        printJson(options, editor.changes(), errors);
        return errors.empty() ? Fine : HasFindings;
    }
    for (FileEditor::Change const& change : editor.changes())
    {
        std::string const what = change.before.empty()  ? "added " + change.after
                                 : change.after.empty() ? "removed " + change.before
                                                        : (change.keyword.empty() ? "" : change.keyword + " ") +
                                                              change.before + " -> " + change.after;
        std::printf("%s:%u:%u: %s\n", options.file.c_str(), change.line, change.column, what.c_str());
    }
    Findings::print(errors);
    return errors.empty() ? Fine : HasFindings;
}

void addEditCommand(CommandLine& line, char const* name, char const* help, char const* argument,
                    char const* argumentHelp, bool (*apply)(FileEditor& editor, std::string const& edit),
                    std::string (*fault)(std::string const& edit))
{
    auto const options = std::make_shared<SetOptions>();
    line.add(name, help, [options, apply] { return edit(*options, apply); })
        .required("FILE", options->file, "The file to change")
        .required(argument, options->edits, argumentHelp)
        .check(fault)
        .optional("--database", options->database, "The database that binds the variables of a record file")
        .optional("--object", options->object, "Of an entity file, the object of this name")
        .flag("--force", options->force, "Also change what is not known, or would be found fault with")
        .flag("--dry-run", options->dryRun, "Tell the changes, write nothing")
        .flag("--json", options->json, "Print JSON")
        .footer(
            "Exit codes: 0 changed, 1 changed, but the library cannot read all of the file, 2 nothing was changed.");
}
} // namespace

void addSetCommand(CommandLine& line)
{
    addEditCommand(
        line, "set", "Changes values in a file; every other byte stays as it is.", "PATH=VALUE",
        "Such as max-speed=20.5, 'max-speed=60 km/h' or systems/main-gun/reload-time=6.0; all are set, or none",
        [](FileEditor& editor, std::string const& edit)
        {
            std::size_t const equals = findOutsideQuotes(edit, '=');
            return editor.set(edit.substr(0, equals), edit.substr(equals + 1));
        },
        [](std::string const& edit)
        {
            return findOutsideQuotes(edit, '=') == std::string::npos ? "expected PATH=VALUE, found \"" + edit + "\""
                                                                     : std::string();
        });
}

void addUnsetCommand(CommandLine& line)
{
    addEditCommand(
        line, "unset", "Takes values out of a file; every other byte stays as it is.", "PATH",
        "Such as max-speed or sensors/radar; all are taken out, or none",
        [](FileEditor& editor, std::string const& edit) { return editor.unset(edit); },
        [](std::string const&) { return std::string(); });
}
