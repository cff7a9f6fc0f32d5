#include "Schema.h"

#include <algorithm>
#include <map>
#include <vector>

#include "Catalogue.h"

namespace
{
/// Keywords that one class declares, and the types that have them.
struct Section
{
    std::string name;
    std::vector<KeywordInfo const*> keywords;
    std::vector<TypeInfo const*> users;
};

std::string cell(std::string const& text)
{
    std::string escaped;
    for (char const letter : text)
    {
        escaped += letter == '|' ? "\\|" : letter == '\n' ? " " : std::string(1, letter);
    }
    return escaped;
}

std::vector<Section> sections()
{
    std::vector<Section> all;
    std::map<std::string, std::size_t> places;
    for (TypeInfo const& type : knownTypes())
    {
        std::string from; // nested keywords stand with the one they are in
        for (KeywordInfo const& keyword : type.keywords)
        {
            from = keyword.isNested() ? from : keyword.from;
            auto const [place, isNew] = places.try_emplace(from, all.size());
            if (isNew)
            {
                all.push_back({from, {}, {}});
            }
            Section& section = all[place->second];
            if (section.users.empty() || section.users.back() != &type)
            {
                section.users.push_back(&type);
            }
            if (section.users.size() == 1)
            {
                section.keywords.push_back(&keyword);
            }
        }
    }
    return all;
}
} // namespace

std::string markdownManual()
{
    std::string text =
        "# Keywords\n\n"
        "All types of records, components and other parts with their keywords. `a/b` is the keyword `b` inside of "
        "`a`, or inside of each\nelement of the list `a`.\n\n"
        "| type | class | keywords of |\n|---|---|---|\n";
    std::vector<Section> const all = sections();
    for (TypeInfo const& type : knownTypes())
    {
        text += "| `" + type.name + "` | `" + type.className + "` |";
        char const* separator = " ";
        for (Section const& section : all)
        {
            if (std::ranges::find(section.users, &type) != section.users.end())
            {
                text += separator + section.name;
                separator = ", ";
            }
        }
        text += " |\n";
    }
    for (Section const& section : all)
    {
        text += "\n## " + section.name + "\n\n| keyword | value | default | meaning |\n|---|---|---|---|\n";
        for (KeywordInfo const* keyword : section.keywords)
        {
            text += "| `" + keyword->path + "` | " + cell(keyword->valueText()) + " | " +
                    (keyword->defaultText.empty() ? "" : "`" + cell(keyword->defaultText) + "`") + " | " +
                    cell(keyword->help);
            for (std::string const& alias : keyword->aliases)
            {
                text += (&alias == keyword->aliases.data() ? " Also `" : ", `") + alias + "`";
            }
            text += " |\n";
        }
    }
    return text;
}
