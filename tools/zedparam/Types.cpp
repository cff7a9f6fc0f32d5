#include "Commands.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "AxNearest.h"
#include "Catalogue.h"
#include "CommandLine.h"
#include "Json.h"

namespace
{
struct TypesOptions
{
    std::string name;
    bool json = false;
};

std::size_t topLevelKeywords(TypeInfo const& type)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(type.keywords, [](KeywordInfo const& keyword) { return !keyword.isNested(); }));
}

/// Null, after a line on the standard error stream, for a name that is unknown.
TypeInfo const* typeNamed(std::string const& name)
{
    std::vector<std::string_view> known;
    for (TypeInfo const& type : knownTypes())
    {
        if (type.name == name || type.className == name)
        {
            return &type;
        }
        known.push_back(type.name);
    }
    std::fprintf(stderr, "zedparam: no type \"%s\"", name.c_str());
    if (std::string_view const nearest = axNearest(name, known); !nearest.empty())
    {
        std::fprintf(stderr, "; did you mean \"%s\"?", std::string(nearest).c_str());
    }
    std::fprintf(stderr, "\nzedparam types lists them all\n");
    return nullptr;
}

void printAll(std::vector<TypeInfo> const& types)
{
    TypeInfo const* previous = nullptr;
    for (TypeInfo const& type : types)
    {
        if (previous == nullptr || previous->kind != type.kind)
        {
            std::printf("%s%ss\n", previous == nullptr ? "" : "\n", type.kindName());
        }
        previous = &type;
        std::printf("  %-54s  %2zu keywords, %2zu of its own\n", type.name.c_str(), topLevelKeywords(type),
                    type.ownKeywords());
    }
}

void printOne(TypeInfo const& type)
{
    std::printf("%s: %s, class %s\n", type.name.c_str(), type.kindName(), type.className.c_str());
    std::size_t keywordWidth = 0;
    std::size_t valueWidth = 0;
    std::size_t defaultWidth = 0;
    for (KeywordInfo const& keyword : type.keywords)
    {
        keywordWidth = std::max(keywordWidth, keyword.path.size());
        valueWidth = std::max(valueWidth, keyword.valueText().size());
        defaultWidth = std::max(defaultWidth, keyword.defaultText.size());
    }
    std::string_view from;
    for (KeywordInfo const& keyword : type.keywords)
    {
        if (!keyword.isNested() && from != keyword.from)
        {
            from = keyword.from;
            std::printf("\nfrom %s\n", keyword.from.c_str());
        }
        std::printf("  %-*s  %-*s  %-*s  %s\n", static_cast<int>(keywordWidth), keyword.path.c_str(),
                    static_cast<int>(valueWidth), keyword.valueText().c_str(), static_cast<int>(defaultWidth),
                    keyword.defaultText.c_str(), keyword.help.c_str());
    }
}

void writeType(JsonWriter& json, TypeInfo const& type, bool withKeywords)
{
    json.beginObject().member("name", type.name).member("kind", type.kindName());
    json.member("class", type.className);
    if (!withKeywords)
    {
        json.key("keywords").integer(static_cast<long long>(topLevelKeywords(type)));
        json.key("own-keywords").integer(static_cast<long long>(type.ownKeywords()));
    }
    else
    {
        json.key("keywords").beginArray();
        for (KeywordInfo const& keyword : type.keywords)
        {
            json.beginObject().member("keyword", keyword.path);
            writeKeyword(json, keyword);
            json.endObject();
        }
        json.endArray();
    }
    json.endObject();
}

int listTypes(TypesOptions const& options)
{
    JsonWriter json;
    if (options.name.empty() && options.json)
    {
        json.beginArray();
        for (TypeInfo const& type : knownTypes())
        {
            writeType(json, type, false);
        }
        json.endArray().print();
    }
    else if (options.name.empty())
    {
        printAll(knownTypes());
    }
    else if (TypeInfo const* const type = typeNamed(options.name); type == nullptr)
    {
        if (options.json)
        {
            json.null().print();
        }
        return HasFindings;
    }
    else if (options.json)
    {
        writeType(json, *type, true);
        json.print();
    }
    else
    {
        printOne(*type);
    }
    return Fine;
}
} // namespace

void addTypesCommand(CommandLine& line)
{
    auto const options = std::make_shared<TypesOptions>();
    line.add("types", "The types of records, components and other parts, or the keywords of one.",
             [options] { return listTypes(*options); })
        .optional("NAME", options->name, "A type, such as turret-component-descriptor; none: all")
        .flag("--json", options->json, "Print JSON");
}
