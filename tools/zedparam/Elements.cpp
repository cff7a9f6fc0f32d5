#include "Elements.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "AxNumberText.h"

namespace
{
/// A member whose value names the element that it stands in.
struct Identity
{
    char const* keyword;
    bool isOrdered; ///< later elements win over earlier ones, or earlier ones are preferred
};
constexpr Identity theIdentities[] = {
    {"object-type", true},   {"entity-type", true},     {"target-type", true},
    {"ammo", true},          {"angle", true},           {"munition-type", true},
    {"munition-name", true}, {"resource-name", false},  {"parameter-name", false},
    {"soil-type", false},    {"formation-type", false}, {"record-name", true},
    {"uuid", true},          {"label", true},
};
/// Lists whose elements are whole values, each at most once, in any order.
constexpr std::string_view theSets[] = {"connect", ""};

/// Stands in keys where no head can go on.
constexpr char theMark = '\1';

enum class Told
{
    ByHead,
    ByMember,
    ByNumber,
    AsWhole,
    ByPlace
};

using Siblings = std::vector<Element*>; // of one head in one of the lists

/// How the elements of one head are told apart.
struct Rule
{
    Told told = Told::ByHead;
    Identity const* identity = nullptr;
};

std::optional<std::string> nameOf(Item const& item, Rule const& rule)
{
    switch (rule.told)
    {
    case Told::ByMember:
        if (Item const* member = item.find(rule.identity->keyword))
        {
            return member->hasLists() ? member->written() : member->atoms();
        }
        return std::nullopt;
    case Told::ByNumber:
        if (!item.items.empty() && item.items.front().kind == Item::Kind::Number && item.hasLists())
        {
            std::string text;
            axAppendReal(text, item.items.front().number);
            return text;
        }
        return std::nullopt;
    case Told::AsWhole:
        return item.written();
    default:
        return std::nullopt;
    }
}

bool tellsApart(Rule const& rule, std::vector<Siblings> const& lists)
{
    return std::ranges::all_of(lists,
                               [&rule](Siblings const& siblings)
                               {
                                   std::set<std::string> names;
                                   return std::ranges::all_of(siblings,
                                                              [&](Element const* element)
                                                              {
                                                                  auto name = nameOf(*element->item, rule);
                                                                  return name && names.insert(std::move(*name)).second;
                                                              });
                               });
}

Rule ruleFor(std::string const& head, std::vector<Siblings> const& lists)
{
    bool const isRepeated =
        std::ranges::any_of(lists, [](Siblings const& siblings) { return siblings.size() > 1; }) || head.empty();
    // What the first list has not may be two elements that happen to be the only ones of their head.
    bool const isAddedTwice = lists.size() > 2 && lists.front().empty();
    if (!isRepeated && !isAddedTwice)
    {
        return {Told::ByHead};
    }
    for (Identity const& identity : theIdentities)
    {
        if (Rule const rule{Told::ByMember, &identity}; tellsApart(rule, lists))
        {
            return rule;
        }
    }
    if (Rule const rule{Told::ByNumber}; isRepeated && tellsApart(rule, lists))
    {
        return rule;
    }
    bool const isSet = isRepeated && std::ranges::find(theSets, head) != std::end(theSets);
    if (Rule const rule{Told::AsWhole}; isSet && tellsApart(rule, lists))
    {
        return rule;
    }
    return {isRepeated ? Told::ByPlace : Told::ByHead};
}

/// Gives elements of `other` the keys of the elements of `base` that they belong to.
class Alignment
{
public:
    Alignment(Siblings const& base, Siblings const& other, double tolerance)
        : myBase(base), myOther(other), myTolerance(tolerance)
    {
    }

    void run()
    {
        std::size_t const shorter = std::min(myBase.size(), myOther.size());
        std::size_t front = 0;
        while (front < shorter && isSameAt(front, front))
        {
            join(front, front);
            ++front;
        }
        std::size_t back = 0;
        while (back < shorter - front && isSameAt(myBase.size() - 1 - back, myOther.size() - 1 - back))
        {
            ++back;
            join(myBase.size() - back, myOther.size() - back);
        }
        between(front, myBase.size() - back, front, myOther.size() - back);
    }

private:
    static constexpr std::size_t theMostPairs = 4'000'000;

    bool isSameAt(std::size_t i, std::size_t j) const
    {
        return isSame(*myBase[i]->item, *myOther[j]->item, myTolerance);
    }
    void join(std::size_t i, std::size_t j) { myOther[j]->key = myBase[i]->key; }
    void joinInTurn(std::size_t i, std::size_t iEnd, std::size_t j, std::size_t jEnd)
    {
        while (i < iEnd && j < jEnd)
        {
            join(i++, j++);
        }
    }

    /// By the longest common subsequence, unless that would take too long.
    void between(std::size_t i, std::size_t iEnd, std::size_t j, std::size_t jEnd)
    {
        std::size_t const rows = iEnd - i;
        std::size_t const columns = jEnd - j;
        if (rows == 0 || columns == 0 || rows > theMostPairs / columns)
        {
            joinInTurn(i, iEnd, j, jEnd);
            return;
        }
        std::size_t const width = columns + 1;
        std::vector<unsigned> longest((rows + 1) * width, 0);
        std::vector<bool> same(rows * columns);
        for (std::size_t r = rows; r-- > 0;)
        {
            for (std::size_t c = columns; c-- > 0;)
            {
                same[r * columns + c] = isSameAt(i + r, j + c);
                longest[r * width + c] = same[r * columns + c]
                                             ? longest[(r + 1) * width + c + 1] + 1
                                             : std::max(longest[(r + 1) * width + c], longest[r * width + c + 1]);
            }
        }
        std::size_t gapI = i;
        std::size_t gapJ = j;
        for (std::size_t r = 0, c = 0; r < rows && c < columns;)
        {
            if (same[r * columns + c])
            {
                joinInTurn(gapI, i + r, gapJ, j + c);
                join(i + r++, j + c++);
                gapI = i + r;
                gapJ = j + c;
            }
            else if (longest[(r + 1) * width + c] >= longest[r * width + c + 1])
            {
                ++r;
            }
            else
            {
                ++c;
            }
        }
        joinInTurn(gapI, iEnd, gapJ, jEnd);
    }

    Siblings const& myBase;
    Siblings const& myOther;
    double myTolerance;
};

/// What two lists have alike and the first has not is the same element, added twice.
void joinNew(std::vector<Siblings> const& lists, double tolerance)
{
    std::set<std::string_view> known;
    for (Element const* element : lists[0])
    {
        known.insert(element->key);
    }
    for (Element* element : lists[2])
    {
        auto const isPartner = [&](Element const* other)
        { return !known.contains(other->key) && isSame(*other->item, *element->item, tolerance); };
        auto const partner = known.contains(element->key) ? lists[1].end() : std::ranges::find_if(lists[1], isPartner);
        if (partner != lists[1].end())
        {
            element->key = (*partner)->key;
            known.insert((*partner)->key);
        }
    }
}

void keyByPlace(std::string const& head, std::vector<Siblings> const& lists, double tolerance)
{
    for (std::size_t list = 0; list < lists.size(); ++list)
    {
        for (Element* element : lists[list])
        {
            // No other list has an element of that key unless it is found to belong to this one.
            element->key = head + theMark + std::to_string(list) + theMark + std::to_string(element->index);
        }
        if (list != 0)
        {
            Alignment(lists.front(), lists[list], tolerance).run();
        }
    }
    if (lists.size() > 2)
    {
        joinNew(lists, tolerance);
    }
}

void keyAll(std::string const& head, std::vector<Siblings> const& lists, double tolerance)
{
    Rule const rule = ruleFor(head, lists);
    if (rule.told == Told::ByPlace)
    {
        keyByPlace(head, lists, tolerance);
    }
    for (Siblings const& siblings : lists)
    {
        for (Element* element : siblings)
        {
            std::optional<std::string> const name = nameOf(*element->item, rule);
            element->isOnly = rule.told == Told::ByHead;
            element->isOrdered =
                rule.told == Told::ByPlace || (rule.told == Told::ByMember && rule.identity->isOrdered);
            if (rule.told == Told::ByHead)
            {
                element->key = head;
                element->label = head;
            }
            else if (rule.told == Told::ByPlace)
            {
                element->label = head + '[' + std::to_string(element->index + 1) + ']';
            }
            else
            {
                element->key = head + theMark + *name;
                element->label = rule.told != Told::AsWhole ? head + '[' + *name + ']'
                                 : !head.empty()            ? head
                                                            : '[' + std::to_string(element->index + 1) + ']';
            }
        }
    }
}
} // namespace

std::vector<std::vector<Element>> elementsOf(std::span<Item const* const> parents, double tolerance)
{
    std::vector<std::vector<Element>> result(parents.size());
    std::map<std::string_view, std::vector<Siblings>> byHead;
    for (std::size_t list = 0; list < parents.size(); ++list)
    {
        auto& elements = result[list];
        elements.reserve(parents[list]->items.size());
        for (Item const& item : parents[list]->items)
        {
            if (item.isList())
            {
                auto& lists = byHead.try_emplace(item.text, parents.size()).first->second;
                Element element{.item = &item};
                element.index = lists[list].size();
                elements.push_back(std::move(element));
                lists[list].push_back(&elements.back());
            }
        }
    }
    for (auto const& [head, lists] : byHead)
    {
        keyAll(std::string(head), lists, tolerance);
    }
    return result;
}
