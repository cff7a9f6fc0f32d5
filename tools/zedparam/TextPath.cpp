#include "TextPath.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

#include "AxReaderWriterFile.h"
#include "EditedValue.h"
#include "NamedElement.h"

namespace
{
/// The items of `list` that the step may mean.
std::vector<TextItem> itemsMeant(KeywordStep const& step, TextItem list, AxReaderWriter const* rw)
{
    std::vector<TextItem> items;
    for (TextItem item = list.firstValue(); item; item = item.next())
    {
        if (item.isList())
        {
            items.push_back(item);
        }
    }
    AxReaderWriter const* const member = memberOf(rw, step.name);
    auto const isHeaded = [&](TextItem item)
    {
        std::string const head = item.head();
        return !head.empty() && (head == step.name || (member != nullptr && memberOf(rw, head) == member));
    };
    auto const own = [rw](TextItem item)
    { return memberOf(rw, item.head()) == nullptr ? ownName(item) : std::string(); };
    return elementsMeant(step, items, isHeaded, own);
}
} // namespace

TextPath TextPath::follow(std::string_view path, TextTree const& tree, TextReading& reading)
{
    TextPath result;
    result.text = path;
    std::vector<KeywordStep> steps;
    if (!readPath(path, steps))
    {
        result.fault = "\"" + std::string(path) + "\" is no path; expected one such as \"max-speed\", " +
                       "\"sensors/radar/detection-period\" or \"range-list/range-entry[2]/hit\"";
        return result;
    }
    std::ranges::transform(steps, std::back_inserter(result.names), &KeywordStep::name);
    result.lists.push_back(tree.root());
    result.rw = reading.read(tree);
    for (KeywordStep const& step : steps)
    {
        AxReaderWriter const* const member = memberOf(result.rw, step.name);
        std::vector<TextItem> const items = itemsMeant(step, result.lists.back(), result.rw);
        if (items.empty())
        {
            auto [text, hint] = elsewhere(result.rw, step.name, path.substr(step.begin));
            bool const isAbsent = text.empty() && !step.identity.empty();
            result.fault = isAbsent ? "there is no " + stepOf(step.name, step.identity) : std::move(text);
            result.hint =
                isAbsent ? nearestHint(step.identity, namesIn(result.lists.back(), nullptr)) : std::move(hint);
            if (result.fault.empty() && step.position > 1)
            {
                result.fault = absent(step.name, step.position, member != nullptr ? 1 : 0);
            }
            return result;
        }
        if (items.size() > 1 && step.position == 0 && member == nullptr)
        {
            std::vector<NamedElement> choices;
            std::ranges::transform(items, std::back_inserter(choices),
                                   [](TextItem item) {
                                       return NamedElement{item.head(), ownName(item)};
                                   });
            result.fault = ambiguous(step.name, choices);
            return result;
        }
        if (step.position > items.size())
        {
            result.fault = absent(step.name, step.position, items.size());
            return result;
        }
        TextItem const chosen = step.position == 0 ? items.back() : items[step.position - 1];
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
        for (std::string const& name : {item.isList() ? item.head() : std::string(), ownName(item)})
        {
            if (!name.empty() && seen.insert(name).second)
            {
                names.push_back(name);
            }
        }
    }
    return names;
}
