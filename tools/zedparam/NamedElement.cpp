#include "NamedElement.h"

#include <algorithm>
#include <set>

#include "AxComponentDescriptor.h"
#include "AxReaderWriterRegistry.h"
#include "AxRwString.h"
#include "PathText.h"

namespace
{
constexpr std::string_view theNamingKeywords[] = {
    "resource-name", "parameter-name", "slot-name", "load-point-name", "group-name",
    "record-name",   "munition-name",  "soil-type", "formation-type",  "label"};

constexpr std::string_view theComponentType = "component-descriptor-type";

bool isNaming(std::string_view keyword)
{
    return std::ranges::find(theNamingKeywords, keyword) != std::end(theNamingKeywords);
}
} // namespace

std::string ownName(TextItem element)
{
    TextItem const first = element.isList() ? element.firstValue() : TextItem();
    for (TextItem item = first.head() == theComponentType ? TextItem() : first; item; item = item.next())
    {
        TextItem const value = item.isList() ? item.firstValue() : TextItem();
        if (value && !value.isList() && !value.next() && isNaming(item.head()))
        {
            return std::string(value.value());
        }
    }
    return {};
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
    return {};
}

std::string ownName(AxReaderWriter const& element)
{
    bool const isComponent = dynamic_cast<AxComponentDescriptor const*>(&element) != nullptr;
    AxReaderWriterRegistry const* const members = isComponent ? nullptr : element.registryIfAny();
    for (std::string_view const keyword : theNamingKeywords)
    {
        AxSymbolString const symbol = AxSymbolString::find(keyword);
        AxReaderWriter const* const member = members != nullptr && !symbol.isNull() ? members->find(symbol) : nullptr;
        if (auto const* const text = dynamic_cast<AxRwString const*>(member))
        {
            return text->value().string();
        }
    }
    return {};
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
