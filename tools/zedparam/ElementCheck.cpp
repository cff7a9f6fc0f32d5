#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "AxEntityType.h"
#include "AxSimMunition.h"
#include "AxlObj.h"
#include "RowCheck.h"

namespace
{
/// The keyword of what an element is asked by; empty for what is no element of a table.
std::string_view keyOf(std::string_view element)
{
    return element == "entity-range" || element == "entity-priority" ? "entity-type"
           : element == "ammo-select"                                ? "target-type"
           : element == "ammo-entry"                                 ? "ammo"
                                                                     : "";
}

/// The head of the first element of a table in the list; empty when it is no table.
std::string_view elementWordIn(AxlObj const& list)
{
    std::string_view word;
    for (AxlObj const* rest = list.cdr(); rest->isPair() && word.empty(); rest = rest->cdr())
    {
        std::string_view const head = rest->car()->car()->text();
        word = keyOf(head).empty() ? std::string_view() : head;
    }
    return word;
}

/// Tables take items of any head for elements, but for ranges, which must have a determinant.
bool isElement(AxlObj const& item, std::string_view word)
{
    std::string_view const head = item.car()->text();
    return item.isPair() && (head == word || (word != "entity-range" && !head.empty() && head != "xml-item"));
}

/// False for a type that is not a row of plain numbers, in an entity file joined by ":".
bool readType(AxlObj const* item, AxEntityType& type)
{
    if (item->cdr()->car()->text().find(':') != std::string_view::npos)
    {
        return AxEntityType::fromString(item->cdr()->car()->text(), type);
    }
    AxEntityType::Fields fields{};
    AxlObj const* number = item->cdr();
    for (std::int32_t& field : fields)
    {
        if (!number->car()->isInteger())
        {
            return false;
        }
        field = static_cast<std::int32_t>(number->car()->flonum());
        number = number->cdr();
    }
    type = AxEntityType(fields);
    return true;
}

bool isPattern(AxEntityType const& type)
{
    return std::ranges::find(type.fields(), AxEntityType::theWildcard) != type.fields().end();
}

bool isPattern(AxObjectType const& type)
{
    return std::ranges::find(type.fields(), AxObjectType::theWildcard) != type.fields().end();
}

/// Of elements that are asked in file order, an exact one before every pattern and of patterns the last that fits: an
/// exact one is hidden by its like before it, a pattern by a later one that covers it.
template <class Key, class IsPattern, class Covers>
void checkHidden(std::vector<std::pair<Key, AxlObj const*>> const& elements, IsPattern const& isPatternOf,
                 Covers const& covers, CellReport const& report)
{
    for (auto element = elements.begin(); element != elements.end(); ++element)
    {
        auto const& key = element->first;
        auto const hides = [&](auto const& other)
        { return isPatternOf(key) ? covers(other.first, key) : other.first == key; };
        bool const isPatternElement = isPatternOf(key);
        auto const begin = isPatternElement ? std::next(element) : elements.begin();
        auto const end = isPatternElement ? elements.end() : element;
        auto const hiding = std::find_if(begin, end, hides);
        if (hiding != end)
        {
            report("hidden-entry", *element->second,
                   "never answers: the element in line " + std::to_string(hiding->second->line()) +
                       (isPatternElement ? " covers all its types and stands behind it" : " has its type"));
        }
    }
}
} // namespace

void checkElements(AxlObj const& list, CellReport const& report)
{
    std::vector<std::pair<AxEntityType, AxlObj const*>> byType;
    std::vector<std::pair<AxSimMunition, AxlObj const*>> byMunition;
    std::string_view const word = elementWordIn(list);
    for (AxlObj const* rest = list.cdr(); rest->isPair(); rest = rest->cdr())
    {
        AxlObj const& element = *rest->car();
        std::string_view const key = isElement(element, word) ? keyOf(word) : std::string_view();
        AxlObj const* const item = key.empty() ? nullptr : itemOf(element, key);
        bool const isMunition = key == "ammo";
        AxEntityType type;
        if (item == nullptr && !key.empty())
        {
            report("missing-key", element,
                   "the element has no \"" + std::string(key) + "\" and answers for " +
                       (isMunition ? "every munition" : "no type"));
        }
        else if (isMunition)
        {
            byMunition.emplace_back(AxSimMunition(), &element);
            byMunition.back().first.getSelf(AxlObjPtr(item), {}, {});
        }
        else if (item != nullptr && readType(item, type))
        {
            byType.emplace_back(type, &element);
        }
    }
    checkHidden(
        byType, [](AxEntityType const& type) { return isPattern(type); },
        [](AxEntityType const& pattern, AxEntityType const& type) { return type.matchPattern(pattern); }, report);
    checkHidden(
        byMunition, [](AxSimMunition const& munition) { return isPattern(munition.munitionType()); },
        [](AxSimMunition const& pattern, AxSimMunition const& munition) { return pattern.matchPattern(munition); },
        report);
}
