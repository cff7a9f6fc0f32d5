#include "NamedElement.h"

#include <set>
#include <string_view>

#include "AxComponentDescriptor.h"
#include "AxObjectType.h"
#include "AxReaderWriterRegistry.h"
#include "AxRwString.h"

namespace
{
constexpr std::string_view theNamingKeywords[] = {
    "resource-name", "parameter-name", "slot-name", "load-point-name", "group-name",
    "record-name",   "munition-name",  "soil-type", "formation-type",  "label"};
constexpr std::string_view theTypeKeywords[] = {"object-type", "entity-type"};

constexpr std::string_view theComponentType = "component-descriptor-type";

bool isNaming(std::string_view keyword)
{
    return std::ranges::find(theNamingKeywords, keyword) != std::end(theNamingKeywords);
}

/// The fields that stand in values, one by one or joined.
std::string typeText(TextItem values)
{
    std::string text;
    for (TextItem value = values; value; value = value.next())
    {
        text.append(text.empty() ? "" : ":").append(value.isList() ? typeText(value.firstChild()) : value.value());
    }
    return text;
}
} // namespace

std::string ownName(TextItem element)
{
    TextItem const first = element.isList() ? element.firstValue() : TextItem();
    if (first.head() == theComponentType)
    {
        return {};
    }
    for (TextItem item = first; item; item = item.next())
    {
        TextItem const value = item.isList() ? item.firstValue() : TextItem();
        if (value && !value.isList() && !value.next() && isNaming(item.head()))
        {
            return std::string(value.value());
        }
    }
    std::string type;
    for (std::size_t i = 0; first && type.empty() && i < std::size(theTypeKeywords); ++i)
    {
        type = typeText(element.find(theTypeKeywords[i]).firstValue());
    }
    return type;
}

std::string ownName(AxEnvObject const& element)
{
    bool const isComponent = element.attribute(AxString(theComponentType)) != nullptr;
    for (AxEnvObject::Attribute const& attribute : element.attributes())
    {
        if (!isComponent && isNaming(attribute.name.string()))
        {
            return attribute.value->value().string();
        }
    }
    for (AxEnvValuePtr const& node : element.children())
    {
        AxEnvObjectPtr const child = isComponent ? nullptr : node->castToObject();
        bool const isType = child != nullptr && child->hasName() && child->attribute("value") != nullptr &&
                            std::ranges::find(theTypeKeywords, child->name().string()) != std::end(theTypeKeywords);
        if (isType)
        {
            return child->attribute("value")->string();
        }
    }
    return {};
}

std::string ownName(AxReaderWriter& element)
{
    bool const isComponent = dynamic_cast<AxComponentDescriptor const*>(&element) != nullptr;
    AxReaderWriterRegistry const* const members = isComponent ? nullptr : element.registryIfAny();
    auto const memberOf = [members](std::string_view keyword)
    {
        AxSymbolString const symbol = AxSymbolString::find(keyword);
        return members != nullptr && !symbol.isNull() ? members->find(symbol) : nullptr;
    };
    for (std::string_view const keyword : theNamingKeywords)
    {
        if (auto const* const text = dynamic_cast<AxRwString const*>(memberOf(keyword)))
        {
            return text->value().string();
        }
    }
    for (std::string_view const keyword : theTypeKeywords)
    {
        if (AxReaderWriter* const type = memberOf(keyword))
        {
            std::string values;
            type->putData(values, 0);
            return typeText(TextTree(values).root());
        }
    }
    return {};
}

bool isSameName(std::string const& own, std::string const& name)
{
    if (own == name || own.find(':') == std::string::npos || name.find(':') == std::string::npos)
    {
        return own == name && !own.empty();
    }
    AxObjectType type;
    AxObjectType other;
    return AxObjectType::fromString(own, type) && AxObjectType::fromString(name, other) && type == other;
}

AxSymbolString headOf(AxReaderWriter& element)
{
    if (!element.name().isNull())
    {
        return element.name();
    }
    std::string text;
    element.putSelf(text, 0, false, AxFilename::nullFilename());
    std::size_t const begin = std::min(text.find('(') + 1, text.size());
    return AxSymbolString(std::string_view(text).substr(begin, text.find_first_of(" ()\n", begin) - begin));
}

std::vector<AxReaderWriter*> elementsMeant(KeywordStep const& step, std::vector<AxReaderWriter*> const& elements)
{
    return elementsMeant(
        step, elements, [&step](AxReaderWriter* element) { return headOf(*element) == AxString(step.name); },
        [](AxReaderWriter* element) { return ownName(*element); });
}

std::string ambiguous(std::string const& name, std::vector<NamedElement> const& elements)
{
    constexpr std::size_t theMostShown = 5;
    std::string choices;
    std::set<std::string> distinct;
    bool areNamed = elements.size() <= theMostShown;
    for (NamedElement const& element : elements)
    {
        std::string const choice = stepOf(element.head, element.own);
        areNamed = areNamed && !element.own.empty() && distinct.insert(choice).second;
        choices.append(choices.empty() ? "" : &element == &elements.back() ? " or " : ", ").append(choice);
    }
    std::string const count = std::to_string(elements.size());
    std::string const step = stepOf(name);
    return count + " items are \"" + name + "\"; name one as " +
           (areNamed ? choices : "\"" + step + "[1]\" to \"" + step + "[" + count + "]\"");
}

std::string absent(std::string const& name, std::size_t position, std::size_t count)
{
    return "there is no \"" + name + "[" + std::to_string(position) + "]\"" +
           (count != 0 ? ", only " + std::to_string(count) : "");
}
