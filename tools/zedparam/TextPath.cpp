#include "TextPath.h"

#include <algorithm>
#include <set>
#include <utility>

#include "AxObjectType.h"
#include "AxReaderWriterFile.h"
#include "EditedValue.h"
#include "RecordWalk.h"

namespace
{
void appendFields(TextItem item, std::string& text)
{
    for (TextItem field = item.isList() ? item.firstChild() : item; field;
         field = item.isList() ? field.next() : TextItem())
    {
        text.append(text.empty() ? "" : ":").append(field.value());
    }
}

/// Whether the entry `list` is for that type.
bool isFor(TextItem list, AxObjectType const& type)
{
    for (std::string_view const keyword : {"object-type", "entity-type"})
    {
        TextItem const item = list.find(keyword);
        std::string text;
        for (TextItem value = item.firstValue(); value; value = value.next())
        {
            appendFields(value, text);
        }
        AxObjectType its;
        if (item && AxObjectType::fromString(text, its) && its == type)
        {
            return true;
        }
    }
    return false;
}

/// The items of `list` that `name` may mean.
std::vector<TextItem> itemsNamed(std::string const& name, TextItem list, AxReaderWriter const* member)
{
    std::vector<TextItem> named;
    AxObjectType type;
    bool const isType = AxObjectType::fromString(name, type) && name.find(':') != std::string::npos;
    for (TextItem item = list.firstValue(); item; item = item.next())
    {
        std::string const head = item.head();
        bool const isMeant =
            item.isList() && !head.empty() &&
            (head == name ||
             (member != nullptr && (member->name() == AxString(head) || member->hasAlias(AxSymbolString::find(head)))));
        if (isMeant || (isType && item.isList() && isFor(item, type)))
        {
            named.push_back(item);
        }
    }
    return named;
}
} // namespace

TextPath TextPath::follow(std::string_view path, TextTree const& tree, TextReading& reading)
{
    TextPath result;
    result.text = path;
    std::vector<std::size_t> positions;
    std::vector<std::size_t> begins;
    for (std::size_t begin = 0; begin <= path.size();)
    {
        begins.push_back(begin);
        std::size_t const end = std::min(path.find('/', begin), path.size());
        result.names.emplace_back(path.substr(begin, end - begin));
        positions.push_back(0);
        begin = end + 1;
        if (!takePosition(result.names.back(), positions.back()) || result.names.back().empty())
        {
            result.fault = "\"" + std::string(path) + "\" is no path; expected one such as \"max-speed\", " +
                           "\"sensors/radar/detection-period\" or \"range-list/range-entry[2]/hit\"";
            return result;
        }
    }
    result.lists.push_back(tree.root());
    result.rw = reading.read(tree);
    for (std::size_t i = 0; i < result.names.size(); ++i)
    {
        std::string const& name = result.names[i];
        AxReaderWriter const* const member = memberOf(result.rw, name);
        std::vector<TextItem> const items = itemsNamed(name, result.lists.back(), member);
        if (items.empty())
        {
            auto [text, hint] = elsewhere(result.rw, name, path.substr(begins[i]));
            result.fault = std::move(text);
            result.hint = std::move(hint);
            return result;
        }
        if (items.size() > 1 && positions[i] == 0 && member == nullptr)
        {
            result.fault = std::to_string(items.size()) + " items are \"" + name + "\"; name one as \"" + name +
                           "[1]\" to \"" + name + "[" + std::to_string(items.size()) + "]\"";
            return result;
        }
        if (positions[i] > items.size())
        {
            result.fault = "there is no \"" + name + "[" + std::to_string(positions[i]) + "]\", only " +
                           std::to_string(items.size());
            return result;
        }
        TextItem const chosen = positions[i] == 0 ? items.back() : items[positions[i] - 1];
        result.lists.push_back(chosen);
        result.outer = result.rw;
        result.rw = result.rw != nullptr ? reading.part(*result.rw, chosen) : nullptr;
    }
    return result;
}

AxReaderWriterRegistry const* membersIn(AxReaderWriter const* rw)
{
    if (auto const* file = dynamic_cast<AxReaderWriterFile const*>(rw))
    {
        rw = file->content();
    }
    return rw != nullptr ? rw->registryIfAny() : nullptr;
}

AxReaderWriter* memberOf(AxReaderWriter const* rw, std::string_view name)
{
    AxReaderWriterRegistry const* const registry = membersIn(rw);
    AxSymbolString const keyword = AxSymbolString::find(name);
    return registry != nullptr && !keyword.isNull() ? registry->find(keyword) : nullptr;
}

std::vector<std::string> namesIn(TextItem list, AxReaderWriter const* rw)
{
    std::vector<std::string> names;
    std::set<std::string> seen;
    AxReaderWriterRegistry const* const registry = membersIn(rw);
    for (std::size_t i = 0; registry != nullptr && i < registry->size(); ++i)
    {
        AxRegistryEntry const entry = registry->entry(i);
        if (!entry.content && !entry.keyword.isNull())
        {
            names.push_back(entry.keyword.string().string());
            seen.insert(names.back());
        }
    }
    for (TextItem item = list.firstValue(); item; item = item.next())
    {
        if (item.isList() && !item.head().empty() && seen.insert(item.head()).second)
        {
            names.push_back(item.head());
        }
    }
    return names;
}
