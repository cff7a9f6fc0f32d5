#include "Commands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Answer.h"
#include "AxNearest.h"
#include "AxReaderWriterFile.h"
#include "AxRwList.h"
#include "AxZedObjectParameters.h"
#include "Findings.h"
#include "Json.h"
#include "RecordJson.h"

namespace
{
struct Options
{
    std::string database;
    std::string type;
    std::vector<std::string> keywords;
    bool json = false;
    bool all = false;
};

/// The member, list element or content of that name; null when there is none. `known` receives all names there are.
AxReaderWriter* childOf(AxReaderWriter& parent, std::string_view name, std::vector<std::string_view>& known)
{
    AxReaderWriter* found = nullptr;
    auto const offer = [&](AxReaderWriter* child, std::string_view childName)
    {
        known.push_back(childName);
        found = found == nullptr && childName == name ? child : found;
    };
    if (AxReaderWriterRegistry const* registry = parent.registryIfAny())
    {
        for (std::size_t i = 0; i < registry->size(); ++i)
        {
            AxRegistryEntry const entry = registry->entry(i);
            if (!entry.content && !entry.keyword.isNull())
            {
                offer(entry.member, entry.keyword.view());
            }
        }
    }
    if (auto const* list = dynamic_cast<AxRwList const*>(&parent))
    {
        for (AxListItem const* item = list->first(); item != nullptr; item = item->next())
        {
            AxReaderWriter* element = AxRwList::element(item);
            offer(element, element->name().view());
        }
    }
    auto const* file = dynamic_cast<AxReaderWriterFile const*>(&parent);
    if (file != nullptr && file->content() != nullptr)
    {
        return childOf(*file->content(), name, known);
    }
    return found;
}

/// The object at the end of a path such as "systems/main-gun/reload-time"; null after a line when there is none.
AxReaderWriter* find(AxReaderWriter& record, std::string_view path)
{
    AxReaderWriter* current = &record;
    for (std::size_t begin = 0; begin <= path.size();)
    {
        std::size_t const end = std::min(path.find('/', begin), path.size());
        std::string_view const name = path.substr(begin, end - begin);
        begin = end + 1;
        if (name.empty())
        {
            std::fprintf(stderr, "zedparam: \"%s\" is no path of keywords; expected one such as \"max-speed\"\n",
                         std::string(path).c_str());
            return nullptr;
        }
        std::vector<std::string_view> known;
        AxReaderWriter* child = childOf(*current, name, known);
        if (child == nullptr)
        {
            std::fprintf(stderr, "zedparam: \"%s\" has no \"%s\"", current->name().c_str(), std::string(name).c_str());
            std::string_view const nearest = axNearest(name, known);
            std::fprintf(stderr, nearest.empty() ? "\n" : "; did you mean \"%s\"?\n", std::string(nearest).c_str());
            return nullptr;
        }
        current = child;
    }
    return current;
}

/// The value as text, with what is known of it as a comment.
void printText(AxReaderWriter& rw, bool all)
{
    std::string text;
    rw.putSelf(text, 0, all, AxFilename::nullFilename());
    AxKeyword const* description = rw.description();
    if (description != nullptr && text.find('\n') == std::string::npos)
    {
        text.append("  ; ").append(rw.valueSpecified() ? "" : "default, ");
        text.append(description->unit).append(*description->unit != '\0' ? ", " : "").append(description->help);
    }
    std::printf("%s\n", text.c_str());
}

void printJson(Answer const& answer, std::vector<AxReaderWriter*> const& chosen, Options const& options)
{
    JsonWriter json;
    json.beginObject();
    writeAnswer(json, answer);
    json.key("values").beginObject();
    for (std::size_t i = 0; i < chosen.size(); ++i)
    {
        json.key(options.keywords[i]);
        writeJson(json, *chosen[i], options.all);
    }
    if (options.keywords.empty())
    {
        writeJsonMembers(json, *answer.record, options.all);
    }
    json.endObject().endObject().print();
}

int show(Options const& options)
{
    Findings findings(Findings::Print::AtOnce);
    Answer answer;
    int const exitCode = ask(options.database, options.type, answer);
    if (answer.record == nullptr)
    {
        return exitCode;
    }
    std::vector<AxReaderWriter*> chosen;
    for (std::string const& keyword : options.keywords)
    {
        chosen.push_back(find(*answer.record, keyword));
        if (chosen.back() == nullptr)
        {
            return CouldNotRun;
        }
    }
    if (options.json)
    {
        printJson(answer, chosen, options);
    }
    else if (chosen.empty())
    {
        std::printf("%s", answer.record->writtenText(options.all).c_str());
    }
    else
    {
        for (AxReaderWriter* rw : chosen)
        {
            printText(*rw, options.all);
        }
    }
    return findings.empty() ? Fine : HasFindings;
}
} // namespace

void addShowCommand(CLI::App& app, int& exitCode)
{
    auto const options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("show", "The record that answers an object type, or some of its values.");
    command->add_option("DB", options->database, "The database file (.opd)")->required();
    command->add_option("TYPE", options->type, "The object type, such as 1:1:1:225:1:1:3:0")->required();
    command->add_option("KEYWORD", options->keywords,
                        "Values to show, such as max-speed or systems/main-gun/reload-time; none: the whole record");
    command->add_flag("--json", options->json, "Print JSON");
    command->add_flag("--all", options->all, "Show members that hold their default, too");
    command->callback([options, &exitCode] { exitCode = show(*options); });
}
