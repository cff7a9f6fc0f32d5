#include "Completion.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "AxReadWholeFile.h"
#include "AxZedObjectParameters.h"
#include "Catalogue.h"
#include "Collection.h"
#include "Manual.h"
#include "NamedElement.h"
#include "OpenEditor.h"
#include "PathSteps.h"
#include "PathText.h"
#include "RecordValue.h"
#include "RecordWalk.h"
#include "TypeArgument.h"

namespace
{
using Words = std::vector<std::string>;

/// The words of a command line by what they are.
struct Line
{
    std::string command;
    CLI::App const* app = nullptr; ///< of the command; null when there is none
    Words arguments;               ///< those in front of the current word that belong to no option
    std::map<std::string, std::string> options{};
    std::string option; ///< whose value the current word is; empty for none
    std::string current;
};

bool takesValue(CLI::App const& command, std::string const& word)
{
    CLI::Option const* const option = command.get_option_no_throw(word);
    return option != nullptr && option->get_items_expected_max() > 0;
}

Line readLine(CLI::App const& app, Words const& words)
{
    Line line;
    line.command = words.front();
    line.current = words.back();
    auto const found = app.get_subcommands([&](CLI::App const* its) { return its->get_name() == line.command; });
    line.app = found.empty() ? nullptr : found.front();
    for (std::size_t i = 1; line.app != nullptr && i + 1 < words.size(); ++i)
    {
        bool const isOption = words[i].size() > 1 && words[i].front() == '-';
        if (!isOption)
        {
            line.arguments.push_back(words[i]);
        }
        else if (takesValue(*line.app, words[i]))
        {
            bool const isLast = i + 2 == words.size();
            (isLast ? line.option : line.options[words[i]]) = isLast ? words[i] : words[i + 1];
            ++i;
        }
    }
    return line;
}

/// What stands in front of the step that is being written, with its "/".
std::string beginOf(std::string const& path)
{
    std::size_t begin = 0;
    for (std::size_t slash = findOutsideQuotes(path, '/'); slash != std::string::npos;)
    {
        begin = slash + 1;
        slash = findOutsideQuotes(path, '/', begin);
    }
    return path.substr(0, begin);
}

std::string withoutSlash(std::string path)
{
    path.resize(path.size() - (path.ends_with('/') ? 1 : 0));
    return path;
}

Words keywords()
{
    std::set<std::string> names;
    for (TypeInfo const& type : knownTypes())
    {
        for (KeywordInfo const& info : type.keywords)
        {
            names.emplace(info.keyword());
        }
    }
    return {names.begin(), names.end()};
}

Words typeNames()
{
    Words names;
    std::ranges::transform(knownTypes(), std::back_inserter(names), &TypeInfo::name);
    return names;
}

Words objectTypes(std::string const& database)
{
    Words types;
    std::unique_ptr<Database> const opened = Collection::openAny(database);
    for (AxSxpParameterDbEntry const* entry :
         opened != nullptr ? opened->entries() : std::vector<AxSxpParameterDbEntry*>())
    {
        types.push_back(entry->objectType().string().string());
    }
    return types;
}

/// Paths of the record that answers the type.
Words recordPaths(Line const& line)
{
    Words paths;
    TypeArgument type;
    std::unique_ptr<Database> const database = Collection::openAny(line.arguments[0]);
    if (database == nullptr || !readType(line.arguments[1], type))
    {
        return paths;
    }
    auto* const entry =
        dynamic_cast<AxSxpParameterDbEntry*>(database->entryForLookup(typeToAsk(type, *database)).entry);
    AxZedObjectParameters* const record = entry != nullptr ? database->getParameters(entry) : nullptr;
    KeywordPath path;
    std::string fault;
    std::string const begin = beginOf(line.current);
    if (record == nullptr || !KeywordPath::parse(begin + "*", path, fault))
    {
        return paths;
    }
    RecordWalk walk = Collection::walkThrough(*database, *entry, *record);
    std::map<std::string, PathSteps> stepsByParent;
    walk.run(path,
             [&](RecordWalk const& at)
             {
                 bool const isWord = at.ownItem() != nullptr;
                 bool const isMember = at.steps().back().occurrence == SourceStep::theLast;
                 stepsByParent[beginOf(at.path())].add(at.keyword().string().string(),
                                                       isWord ? std::string() : ownName(at.rw()),
                                                       isMember ? &at.rw() : nullptr, !isWord && !isLeaf(at.rw()));
             });
    for (auto const& [parent, steps] : stepsByParent)
    {
        std::ranges::transform(steps.all(nullptr), std::back_inserter(paths),
                               [&begin](std::string const& step) { return begin + step; });
    }
    return paths;
}

/// Paths of the file that is to be changed.
Words filePaths(Line const& line, bool isToBeSet)
{
    Words paths;
    std::string text;
    int error = 0;
    auto const option = [&line](char const* name)
    { return line.options.contains(name) ? line.options.at(name) : std::string(); };
    if (findOutsideQuotes(line.current, '=') != std::string::npos ||
        !axReadWholeFile(AxFilename(line.arguments.front()), text, error))
    {
        return paths;
    }
    OpenEditor const opened(line.arguments.front(), text, option("--database"), option("--object"), false);
    std::string const begin = beginOf(line.current);
    for (std::string const& step :
         opened.editor() != nullptr ? opened.editor()->stepsBehind(withoutSlash(begin), !isToBeSet) : Words())
    {
        paths.push_back(begin + step + (isToBeSet && !step.ends_with('/') ? "=" : ""));
    }
    return paths;
}

/// The words that an argument takes, where it takes no others.
Words choicesAt(CLI::App const& command, std::size_t place)
{
    Words words;
    for (CLI::Option const* option : command.get_options([](CLI::Option const* its) { return its->get_positional(); }))
    {
        if (place-- == 0)
        {
            std::istringstream text(choices(*option));
            words.assign(std::istream_iterator<std::string>(text), {});
        }
    }
    return words;
}

/// The last word of a condition.
Words conditions(std::string const& current)
{
    std::size_t const word = current.find_last_of(" (") + 1;
    Words names = keywords();
    std::ranges::for_each(names, [&](std::string& name) { name.insert(0, current, 0, word); });
    return names;
}

Words candidates(Line const& line)
{
    std::string const& command = line.command;
    std::size_t const place = line.arguments.size();
    bool const asksType = command == "lookup" || command == "why" || command == "show" || command == "graph";
    if (!line.option.empty() || line.app == nullptr)
    {
        return {};
    }
    if (place == 0)
    {
        return command == "explain" ? keywords() : command == "types" ? typeNames() : choicesAt(*line.app, place);
    }
    if (asksType && place == 1)
    {
        return objectTypes(line.arguments[0]);
    }
    if (command == "show")
    {
        return recordPaths(line);
    }
    if (command == "find")
    {
        return place == 1 ? conditions(line.current) : keywords();
    }
    return command == "set" || command == "unset" ? filePaths(line, command == "set") : Words();
}
} // namespace

std::vector<std::string> completionsOf(CLI::App const& app, std::vector<std::string> const& words)
{
    Line const line = readLine(app, words);
    Words found = candidates(line);
    std::erase_if(found, [&line](std::string const& word) { return !word.starts_with(line.current); });
    std::ranges::sort(found);
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}
