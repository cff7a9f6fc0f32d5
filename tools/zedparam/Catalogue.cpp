#include "Catalogue.h"

#include <algorithm>
#include <boost/core/demangle.hpp>
#include <cctype>
#include <cmath>
#include <map>
#include <memory>

#include "AxComponentDescriptorFactoryEntry.h"
#include "AxComponentDescriptorList.h"
#include "AxNumberText.h"
#include "AxReaderWriterFile.h"
#include "AxRwList.h"
#include "AxZedStateRepositoryUserExtension.h"
#include "Factories.h"
#include "Findings.h"
#include "Json.h"
#include "PartTypes.h"
#include "RangeText.h"

namespace
{
constexpr int theDeepestNesting = 4;

using TypeNames = std::map<std::string, std::string>; // by class

std::string className(std::type_info const& type)
{
    return boost::core::demangle(type.name());
}

/// "AxRwOffsetVector" as "offset-vector"; a list by its elements, an enumeration by its own name.
std::string kindName(std::string name)
{
    if (name.starts_with("AxRwTemplatedListPtr<"))
    {
        return "list of " + kindName(name.substr(21, name.find_first_of(",>") - 21));
    }
    if (name.starts_with("AxRwEnum<"))
    {
        std::size_t const scope = name.rfind("::");
        std::size_t const start = scope == std::string::npos ? name.find('<') + 1 : scope + 2;
        return kindName(name.substr(start, name.rfind('>') - start));
    }
    std::string kind;
    name.erase(0, name.starts_with("AxRw") ? 4 : name.starts_with("Ax") ? 2 : 0);
    for (char const letter : name)
    {
        bool const isUpper = std::isupper(static_cast<unsigned char>(letter)) != 0;
        bool const followsUpper = !kind.empty() && kind.back() == '-';
        bool const startsWord = isUpper && !kind.empty() && !followsUpper;
        kind += startsWord ? "-" : "";
        kind += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
    return kind;
}

std::string defaultOf(AxReaderWriter const& member)
{
    if (dynamic_cast<AxReaderWriterFile const*>(&member) != nullptr)
    {
        return "\"\""; // what it would write is the content of the file
    }
    std::string text = member.writtenText(true);
    std::size_t const start = text.find(' ');
    std::size_t const end = text.rfind(')');
    return start < end ? text.substr(start + 1, end - start - 1) : std::string();
}

void addKeywords(TypeInfo& type, AxReaderWriter& rw, std::string const& path, TypeNames const& names, int depth)
{
    AxReaderWriterRegistry const* registry = rw.registryIfAny();
    for (std::size_t i = 0; registry != nullptr && i < registry->size(); ++i)
    {
        AxRegistryEntry const entry = registry->entry(i);
        AxKeyword const* description = registry->description(entry.member);
        if (entry.content || entry.keyword.isNull() || description == nullptr)
        {
            continue;
        }
        AxReaderWriter& member = *entry.member;
        KeywordInfo info;
        info.path = path + entry.keyword.string().string();
        for (AxSymbolString const alias : member.aliases())
        {
            info.aliases.push_back(alias.string().string());
        }
        info.kind = kindOf(typeid(member));
        info.defaultText = member.isValue() ? defaultOf(member) : std::string();
        info.unit = description->unit;
        info.help = description->help;
        info.range = description->range;
        std::type_info const* const declarer = registry->declaringClass(&member);
        info.from = className(declarer != nullptr ? *declarer : typeid(rw));
        if (auto const known = names.find(info.from); known != names.end())
        {
            info.from = known->second;
        }
        std::string const inside = info.path + "/";
        type.keywords.push_back(std::move(info));
        if (depth < theDeepestNesting)
        {
            addKeywords(type, member, inside, names, depth + 1);
            auto* const list = dynamic_cast<AxRwList*>(&member);
            if (AxReaderWriter* const element = list != nullptr ? sampleElement(*list) : nullptr)
            {
                addKeywords(type, *element, inside, names, depth + 1);
            }
        }
    }
}

std::vector<TypeInfo> makeTypes()
{
    struct Sample
    {
        TypeInfo info;
        std::unique_ptr<AxReaderWriter> made;
    };
    Findings muted(Findings::Print::Never);
    Factories& factories = installedFactories();
    std::vector<Sample> samples;
    TypeNames names;
    auto const add = [&](std::string const& name, AxReaderWriter* made, TypeInfo::Kind kind)
    {
        if (made != nullptr)
        {
            std::string const its = className(typeid(*made));
            samples.push_back({{name, its, kind, {}}, std::unique_ptr<AxReaderWriter>(made)});
            names.try_emplace(its, name);
        }
    };
    for (AxString const& name : factories.records.typeNames())
    {
        AxZedObjectParameters* const record = AxZedObjectParameters::createParameters(name.c_str());
        if (record != nullptr)
        {
            record->setStateRepositoryUserExtension(new AxZedStateRepositoryUserExtension("user-extension", nullptr));
        }
        add(name.string(), record, TypeInfo::Kind::Record);
    }
    for (AxListItem const* item = factories.components.first(); item != nullptr; item = item->next())
    {
        AxString const name = static_cast<AxComponentDescriptorFactoryEntry*>(item->data())->typeToCreate();
        add(name.string(), AxComponentDescriptor::createComponentDescriptor(name.c_str()), TypeInfo::Kind::Component);
    }
    for (PartType& part : newPartTypes())
    {
        add(part.name, part.made.release(), TypeInfo::Kind::Part);
    }
    std::vector<TypeInfo> types;
    for (Sample& sample : samples)
    {
        addKeywords(sample.info, *sample.made, "", names, 0);
        types.push_back(std::move(sample.info));
    }
    return types;
}
} // namespace

AxReaderWriter* sampleElement(AxRwList& list)
{
    if (dynamic_cast<AxComponentDescriptorList*>(&list) == nullptr)
    {
        list.readText("(list (\"\"))", AxFilename("element"), AxReaderWriter::nullFilenames(),
                      AxReaderWriter::nullVariableReference());
    }
    return list.firstElement();
}

std::string kindOf(std::type_info const& type)
{
    return kindName(className(type));
}

std::string KeywordInfo::valueText() const
{
    std::string text = kind;
    text.append(unit.empty() ? "" : ", ").append(unit);
    if (range.isBounded())
    {
        text.append(", ").append(rangeText(range));
    }
    return text;
}

char const* TypeInfo::kindName() const
{
    return kind == Kind::Record ? "record" : kind == Kind::Component ? "component" : "part";
}

std::size_t TypeInfo::ownKeywords() const
{
    return static_cast<std::size_t>(std::ranges::count_if(keywords, [this](KeywordInfo const& keyword)
                                                          { return !keyword.isNested() && keyword.from == name; }));
}

std::vector<TypeInfo> const& knownTypes()
{
    static std::vector<TypeInfo> const types = makeTypes();
    return types;
}

void writeKeyword(JsonWriter& json, KeywordInfo const& keyword)
{
    json.member("kind", keyword.kind).member("default", keyword.defaultText).member("unit", keyword.unit);
    if (keyword.range.isBounded())
    {
        json.key("range").beginRow();
        for (double const limit : {keyword.range.low, keyword.range.high})
        {
            std::string text;
            axAppendReal(text, limit);
            std::isfinite(limit) ? json.number(text) : json.null();
        }
        json.endArray();
    }
    if (!keyword.aliases.empty())
    {
        json.key("aliases").beginRow();
        for (std::string const& alias : keyword.aliases)
        {
            json.string(alias);
        }
        json.endArray();
    }
    json.member("help", keyword.help).member("from", keyword.from);
}
