#include "Differences.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace
{
class Comparison
{
public:
    explicit Comparison(double tolerance) : myTolerance(tolerance) {}

    std::vector<Difference> run(Item const& a, Item const& b)
    {
        myParents = {&a, &b};
        compare(a, b);
        return std::move(myDifferences);
    }

private:
    using What = Difference::What;

    void compare(Item const& a, Item const& b)
    {
        bool const atomsDiffer = !hasSameAtoms(a, b, myTolerance);
        if (atomsDiffer && a.hasLists() != b.hasLists())
        {
            add(What::Changed, &a, &b, a.written(), b.written());
            return;
        }
        std::size_t const before = myDifferences.size();
        if (atomsDiffer)
        {
            add(What::Changed, &a, &b, a.atoms(), b.atoms());
        }
        std::array<Item const*, 2> const outer = std::exchange(myParents, {&a, &b});
        compareLists(elementsOf(std::array{&a, &b}, myTolerance));
        myParents = outer;
        bool const isMixed = !a.isRegular() || !b.isRegular();
        if (isMixed && myDifferences.size() == before && !isSame(a, b, myTolerance))
        {
            add(What::Changed, &a, &b, a.written(), b.written()); // atoms in other places between the lists
        }
    }

    void compareLists(std::vector<std::vector<Element>> const& lists)
    {
        std::map<std::string_view, Element const*> other;
        for (Element const& element : lists[1])
        {
            other.emplace(element.key, &element);
        }
        std::vector<std::pair<Element const*, Element const*>> common;
        for (Element const& element : lists[0])
        {
            auto const found = other.find(element.key);
            Element const* const partner = found != other.end() ? found->second : nullptr;
            push(&element, partner);
            if (partner == nullptr)
            {
                add(What::Removed, element.item, nullptr, valueOf(element), {});
            }
            else
            {
                compare(*element.item, *partner->item);
                common.emplace_back(&element, partner);
                other.erase(found);
            }
            myPath.pop_back();
        }
        for (Element const& element : lists[1])
        {
            if (other.contains(element.key))
            {
                push(nullptr, &element);
                add(What::Added, nullptr, element.item, {}, valueOf(element));
                myPath.pop_back();
            }
        }
        compareOrder(common);
    }

    /// One difference for a list whose elements stand in another order: those from the first to the last of them that
    /// do.
    void compareOrder(std::vector<std::pair<Element const*, Element const*>>& common)
    {
        std::erase_if(common, [](auto const& pair) { return !pair.first->isOrdered; });
        auto inOrder = common;
        std::ranges::sort(inOrder, {}, [](auto const& pair) { return pair.second->item; });
        std::size_t first = common.size();
        std::string text[2];
        for (std::size_t i = 0; i < common.size(); ++i)
        {
            if (common[i].first != inOrder[i].first)
            {
                (text[0] += text[0].empty() ? "" : ", ") += common[i].first->label;
                (text[1] += text[1].empty() ? "" : ", ") += inOrder[i].second->label;
                first = std::min(first, i);
            }
        }
        if (first != common.size())
        {
            add(What::Moved, common[first].first->item, inOrder[first].second->item, text[0], text[1]);
        }
    }

    static std::string valueOf(Element const& element)
    {
        return element.item->hasLists() ? element.item->written() : element.item->atoms();
    }

    void push(Element const* a, Element const* b)
    {
        Element const& any = a != nullptr ? *a : *b;
        myPath.push_back(
            {.head = any.item->text,
             .label = any.label,
             .index = {a != nullptr ? a->index : PathStep::theNone, b != nullptr ? b->index : PathStep::theNone},
             .isOnly = any.isOnly});
    }

    void add(What what, Item const* a, Item const* b, std::string textA, std::string textB)
    {
        Difference& difference = myDifferences.emplace_back();
        difference.what = what;
        difference.path = myPath;
        difference.item[0] = a;
        difference.item[1] = b;
        difference.parent[0] = myParents[0];
        difference.parent[1] = myParents[1];
        difference.text[0] = std::move(textA);
        difference.text[1] = std::move(textB);
    }

    double myTolerance;
    ItemPath myPath;
    std::array<Item const*, 2> myParents{};
    std::vector<Difference> myDifferences;
};
} // namespace

std::string Difference::pathText() const
{
    std::string joined;
    for (PathStep const& step : path)
    {
        (joined += joined.empty() ? "" : "/") += step.label;
    }
    return joined;
}

std::vector<Difference> differencesOf(Item const& a, Item const& b, double tolerance)
{
    return Comparison(tolerance).run(a, b);
}
