#include <algorithm>
#include <map>
#include <string>
#include <unordered_map>
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

/// An element, by all that it is asked by.
struct Asked
{
    AxlObj const* place;
    bool isPattern;
    std::vector<std::string> fields{};
    std::vector<bool> isFixed{}; ///< which fields a question must have the same for the element to answer it

    void add(std::string field, bool isFixedField)
    {
        fields.push_back(std::move(field));
        isFixed.push_back(isFixedField);
    }
    /// Takes the fields of a type; null as a whole counts as any where `nullIsAny`.
    template <class Type>
    void addType(Type const& type, bool nullIsAny)
    {
        for (std::int32_t const field : type.fields())
        {
            add(std::to_string(field), field != Type::theWildcard && !(nullIsAny && type.isNull()));
        }
    }
    std::string joined(std::vector<bool> const& chosen) const
    {
        std::string text;
        for (std::size_t i = 0; i < fields.size(); ++i)
        {
            text.append(chosen[i] ? fields[i] : std::string()) += '\0';
        }
        return text;
    }
};

template <class Type>
bool isPattern(Type const& type)
{
    return std::ranges::find(type.fields(), Type::theWildcard) != type.fields().end();
}

Asked askedBy(AxEntityType const& type, AxlObj const& place)
{
    Asked asked{&place, isPattern(type)};
    asked.addType(type, false);
    return asked;
}

Asked askedBy(AxSimMunition const& munition, AxlObj const& place)
{
    Asked asked{&place, isPattern(munition.munitionType())};
    asked.addType(munition.munitionType(), true);
    asked.addType(munition.tracerType(), true);
    asked.add(std::to_string(munition.warhead()), munition.warhead() != -1);
    asked.add(munition.guidanceMode().string(), !munition.guidanceMode().isNull());
    asked.add(munition.munitionName().string(), !munition.munitionName().isNull());
    return asked;
}

/// Sets of fixed fields that are told apart; those of entity types are 128.
constexpr std::size_t theMostShapes = 256;

/// Of elements that are asked in file order, an exact one before every pattern and of patterns the last that fits: an
/// exact one is hidden by its like before it, a pattern by a later one that covers it. Elements with the same fields
/// fixed are found by these fields, so that the time grows with the number of elements.
void checkHidden(std::vector<Asked> const& elements, CellReport const& report)
{
    std::vector<AxlObj const*> hiding(elements.size());
    std::unordered_map<std::string, AxlObj const*> exact;
    for (std::size_t i = 0; i < elements.size(); ++i)
    {
        Asked const& element = elements[i];
        if (!element.isPattern)
        {
            auto const all = std::vector<bool>(element.fields.size(), true);
            auto const [first, isNew] = exact.try_emplace(element.joined(all), element.place);
            hiding[i] = isNew ? nullptr : first->second;
        }
    }
    std::map<std::vector<bool>, std::unordered_map<std::string, std::size_t>> behind; // the nearest of each
    for (std::size_t i = elements.size(); i-- > 0;)
    {
        Asked const& element = elements[i];
        std::size_t nearest = elements.size();
        for (auto const& [isFixed, others] : behind)
        {
            auto const other = element.isPattern ? others.find(element.joined(isFixed)) : others.end();
            nearest = other != others.end() ? std::min(nearest, other->second) : nearest;
        }
        hiding[i] = nearest != elements.size() ? elements[nearest].place : hiding[i];
        // Munitions have more shapes than anybody writes: what hides behind the rest is not told.
        if (behind.size() < theMostShapes || behind.contains(element.isFixed))
        {
            behind[element.isFixed][element.joined(element.isFixed)] = i;
        }
    }
    for (std::size_t i = 0; i < elements.size(); ++i)
    {
        if (hiding[i] != nullptr)
        {
            report("hidden-entry", *elements[i].place,
                   "never answers: the element in line " + std::to_string(hiding[i]->line()) +
                       (elements[i].isPattern ? " covers all its types and stands behind it" : " has its type"));
        }
    }
}
} // namespace

void checkElements(AxlObj const& list, CellReport const& report)
{
    std::vector<Asked> elements;
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
            AxSimMunition munition;
            munition.getSelf(AxlObjPtr(item), {}, {});
            elements.push_back(askedBy(munition, element));
        }
        else if (item != nullptr && readType(item, type))
        {
            elements.push_back(askedBy(type, element));
        }
    }
    checkHidden(elements, report);
}
