#include "TextMerge.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>

#include "Elements.h"
#include "MergeEdits.h"

namespace
{
enum Version
{
    Base,
    Ours,
    Theirs
};
using Items = std::array<Item const*, 3>; // the same item in each version, null where it is not

/// A stretch of tokens.
struct Stretch
{
    std::size_t first = 0;
    std::size_t last = 0; ///< behind the last
};

/// A child of a list with the comments that go with it: those in front of it, and one behind it on its line.
struct Unit
{
    Stretch lead{};
    Stretch trail{};
};

/// How the children of one list lie in its text.
class Layout
{
public:
    Layout(TextTree const& tree, TextItem const& list) : myTree(&tree)
    {
        std::size_t next = list.firstTokenIndex() + 1;
        myHead = {list.firstTokenIndex(), next};
        bool isHead = true;
        for (TextItem child = list.firstChild(); child; child = child.next())
        {
            Unit unit{{next, child.firstTokenIndex()}, {child.lastTokenIndex() + 1, child.lastTokenIndex() + 1}};
            next = unit.trail.last = behindTrail(unit.trail.first);
            isHead = isHead && !child.isList();
            myHead.last = isHead ? next : myHead.last;
            myUnits.emplace(child.begin(), unit);
        }
        myClosing = {next, list.lastTokenIndex()};
    }

    /// From the parenthesis over head and atoms up to the first list.
    Stretch head() const { return myHead; }
    /// In front of the closing parenthesis.
    Stretch closing() const { return myClosing; }
    Unit const& unit(TextItem const& child) const { return myUnits.at(child.begin()); }

private:
    std::size_t behindTrail(std::size_t token) const
    {
        auto const& tokens = myTree->tokens();
        auto const kindAt = [&](std::size_t i) { return i < tokens.size() ? tokens[i].kind : TextTree::Kind::Fault; };
        bool const hasBlank = kindAt(token) == TextTree::Kind::Blank &&
                              myTree->textOf(tokens[token]).find('\n') == std::string_view::npos;
        std::size_t const comment = token + (hasBlank ? 1 : 0);
        return kindAt(comment) == TextTree::Kind::Comment ? comment + 1 : token;
    }

    TextTree const* myTree;
    Stretch myHead;
    Stretch myClosing;
    std::map<std::size_t, Unit> myUnits;
};

class TextMerge
{
public:
    TextMerge(std::array<TextTree, 3> const& trees, MergeOptions const& options)
        : myTrees(trees), myEdits(trees[Ours], options)
    {
    }

    /// Nothing when the texts as a whole do not go together.
    std::optional<MergeResult> run()
    {
        Item const roots[3] = {rootOf(Base), rootOf(Ours), rootOf(Theirs)};
        Items const items{myTrees[Base].root() ? &roots[Base] : nullptr, &roots[Ours], &roots[Theirs]};
        if (!items[Ours]->isList() || !items[Theirs]->isList() || !mergeItem(items) || !mergeAround())
        {
            return std::nullopt;
        }
        return myEdits.apply();
    }

private:
    using Layouts = std::array<std::optional<Layout>, 3>;
    using Elements = std::map<std::string_view, std::array<Element const*, 3>>;

    Item rootOf(Version version) const
    {
        TextItem const root = myTrees[version].root();
        return root ? itemOf(root) : Item();
    }

    // ---- Texts ----

    std::size_t beginOf(Version version, std::size_t token) const
    {
        auto const& tokens = myTrees[version].tokens();
        return token < tokens.size() ? tokens[token].begin : myTrees[version].text().size();
    }
    std::string source(Version version, Stretch const& stretch) const
    {
        std::size_t const begin = beginOf(version, stretch.first);
        return myTrees[version].text().substr(begin, beginOf(version, stretch.last) - begin);
    }
    /// All but blanks.
    std::string tokensOf(Version version, Stretch const& stretch) const
    {
        std::string text;
        for (std::size_t i = stretch.first; i < stretch.last; ++i)
        {
            TextTree::Token const& token = myTrees[version].tokens()[i];
            if (token.kind != TextTree::Kind::Blank)
            {
                std::string_view const word = myTrees[version].textOf(token);
                text.append(word.substr(0, word.find_last_not_of(" \t\r") + 1)) += '\n';
            }
        }
        return text;
    }
    static Stretch stretchOf(Item const& item)
    {
        return {item.source.firstTokenIndex(), item.source.lastTokenIndex() + std::size_t{1}};
    }
    std::string tokensOf(Version version, Item const* item) const
    {
        return item != nullptr ? tokensOf(version, stretchOf(*item)) : std::string();
    }
    /// Without the blanks that it begins with.
    std::string unitSource(Version version, Unit const& unit) const
    {
        return source(version, {firstOf(version, unit), unit.trail.last});
    }
    std::size_t firstOf(Version version, Unit const& unit) const
    {
        bool const isBlank = unit.lead.first != unit.lead.last &&
                             myTrees[version].tokens()[unit.lead.first].kind == TextTree::Kind::Blank;
        return unit.lead.first + (isBlank ? 1 : 0);
    }

    // ---- Merging. What answers false could not be merged and has left no edits. ----

    bool mergeItem(Items const& items)
    {
        std::string const tokens[3] = {tokensOf(Base, items[Base]), tokensOf(Ours, items[Ours]),
                                       tokensOf(Theirs, items[Theirs])};
        if (tokens[Theirs] == tokens[Base] || tokens[Theirs] == tokens[Ours])
        {
            return true;
        }
        bool const isOursAsItWas =
            items[Base] != nullptr && items[Base]->source.source() == items[Ours]->source.source();
        if (!isOursAsItWas && areLists(items))
        {
            MergeEdits::Mark const mark = myEdits.mark();
            if (mergeLists(items))
            {
                return true;
            }
            myEdits.goBackTo(mark);
        }
        if (tokens[Ours] != tokens[Base])
        {
            return false;
        }
        myEdits.replace(items[Ours]->source.begin(), items[Ours]->source.end(),
                        std::string(items[Theirs]->source.source()));
        return true;
    }

    /// Whether all versions are members or elements behind a head and perhaps atoms.
    static bool areLists(Items const& items)
    {
        return std::ranges::all_of(items, [](Item const* item)
                                   { return item == nullptr || (item->isList() && item->isRegular()); }) &&
               std::ranges::any_of(items, [](Item const* item) { return item != nullptr && item->hasLists(); });
    }

    bool mergeLists(Items const& items)
    {
        Layouts layouts;
        for (Version const version : {Base, Ours, Theirs})
        {
            if (items[version] != nullptr)
            {
                layouts[version].emplace(myTrees[version], items[version]->source);
            }
        }
        static Item const nothing;
        std::array<Item const*, 3> const parents{items[Base] != nullptr ? items[Base] : &nothing, items[Ours],
                                                 items[Theirs]};
        std::vector<std::vector<Element>> const lists = elementsOf(parents, 0.0);
        Elements elements;
        for (Version const version : {Base, Ours, Theirs})
        {
            for (Element const& element : lists[version])
            {
                elements[element.key][version] = &element;
            }
        }
        if (!mergeStretch(layouts, &Layout::head) || !isOrderKept(lists, elements))
        {
            return false;
        }
        for (Element const& element : lists[Ours])
        {
            mergeElement(element, elements.at(element.key), layouts);
        }
        addTheirs(lists, elements, layouts);
        return mergeStretch(layouts, &Layout::closing);
    }

    /// Of something that has no parts: theirs when ours is as it was.
    bool mergeTokens(std::array<std::string, 3> const& tokens, Stretch const& ours, std::string theirs)
    {
        if (tokens[Theirs] == tokens[Base] || tokens[Theirs] == tokens[Ours])
        {
            return true;
        }
        if (tokens[Ours] != tokens[Base])
        {
            return false;
        }
        myEdits.replace(beginOf(Ours, ours.first), beginOf(Ours, ours.last), std::move(theirs));
        return true;
    }

    bool mergeStretch(Layouts const& layouts, Stretch (Layout::*which)() const)
    {
        std::array<std::string, 3> tokens;
        for (Version const version : {Base, Ours, Theirs})
        {
            tokens[version] = layouts[version] ? tokensOf(version, ((*layouts[version]).*which)()) : std::string();
        }
        return mergeTokens(tokens, ((*layouts[Ours]).*which)(), source(Theirs, ((*layouts[Theirs]).*which)()));
    }

    /// False when theirs has another order than ours and it was not ours that changed it. The order of a record's
    /// members has no meaning; that of elements which have members of their own may have one.
    static bool isOrderKept(std::vector<std::vector<Element>> const& lists, Elements const& elements)
    {
        bool const areElements =
            std::ranges::all_of(lists[Base], [](Element const& element) { return element.item->hasLists(); });
        std::array<std::vector<std::string_view>, 3> orders;
        for (Version const version : {Base, Ours, Theirs})
        {
            for (Element const& element : lists[version])
            {
                auto const& found = elements.at(element.key);
                bool const isCommon = found[Ours] != nullptr && found[Theirs] != nullptr &&
                                      (found[Base] != nullptr || lists[Base].empty());
                if (isCommon && (element.isOrdered || areElements))
                {
                    orders[version].push_back(element.key);
                }
            }
        }
        return orders[Theirs] == orders[Ours] || orders[Theirs] == orders[Base];
    }

    void mergeElement(Element const& element, std::array<Element const*, 3> const& found, Layouts const& layouts)
    {
        if (found[Base] == nullptr && found[Theirs] == nullptr)
        {
            return;
        }
        myPath.push_back(element.label);
        std::array<Unit, 3> units;
        Items items{};
        std::array<std::string, 3> tokens;
        for (Version const version : {Base, Ours, Theirs})
        {
            if (found[version] != nullptr)
            {
                items[version] = found[version]->item;
                units[version] = layouts[version]->unit(items[version]->source);
                tokens[version] = tokensOf(version, {units[version].lead.first, units[version].trail.last});
            }
        }
        Unit const& ours = units[Ours];
        if (items[Theirs] == nullptr)
        {
            if (tokens[Ours] == tokens[Base])
            {
                myEdits.replace(beginOf(Ours, ours.lead.first), beginOf(Ours, ours.trail.last), {});
            }
            else
            {
                addConflict(ours, {}, "changed here, removed there");
            }
        }
        else if (items[Base] == nullptr)
        {
            if (tokens[Ours] != tokens[Theirs])
            {
                addConflict(ours, unitSource(Theirs, units[Theirs]), "added on both sides, not alike");
            }
        }
        else if (MergeEdits::Mark const mark = myEdits.mark();
                 !mergeItem(items) || !mergeComments(units, &Unit::lead) || !mergeComments(units, &Unit::trail))
        {
            myEdits.goBackTo(mark);
            addConflict(ours, unitSource(Theirs, units[Theirs]), "changed on both sides");
        }
        myPath.pop_back();
    }

    bool mergeComments(std::array<Unit, 3> const& units, Stretch Unit::*which)
    {
        std::array<std::string, 3> tokens;
        for (Version const version : {Base, Ours, Theirs})
        {
            tokens[version] = tokensOf(version, units[version].*which);
        }
        return mergeTokens(tokens, units[Ours].*which, source(Theirs, units[Theirs].*which));
    }

    void addConflict(Unit const& ours, std::string theirs, char const* reason)
    {
        myEdits.conflict(beginOf(Ours, firstOf(Ours, ours)), beginOf(Ours, ours.trail.last), std::move(theirs),
                         {pathText(), reason});
    }

    /// What stands in theirs and not in ours, each behind the element that it stands behind there.
    void addTheirs(std::vector<std::vector<Element>> const& lists, Elements const& elements, Layouts const& layouts)
    {
        Element const* before = nullptr; // the nearest in front that ours has, too
        for (Element const& element : lists[Theirs])
        {
            auto const& found = elements.at(element.key);
            if (found[Ours] != nullptr)
            {
                before = found[Ours];
                continue;
            }
            std::size_t const behind =
                before != nullptr ? layouts[Ours]->unit(before->item->source).trail.last : layouts[Ours]->head().last;
            std::size_t const place = beginOf(Ours, behind);
            Unit const& unit = layouts[Theirs]->unit(element.item->source);
            std::string text = inserted(unit, lists[Ours], *layouts[Ours]);
            myPath.push_back(element.label);
            if (found[Base] == nullptr)
            {
                if (element.isOrdered && isFollowedByNew(lists[Ours], elements, before))
                {
                    myEdits.conflict(place, place, text.substr(1),
                                     {pathText(), "added on both sides at one place, where order has a meaning"});
                }
                else
                {
                    myEdits.replace(place, place, std::move(text));
                }
            }
            else if (Unit const& base = layouts[Base]->unit(found[Base]->item->source);
                     tokensOf(Theirs, {unit.lead.first, unit.trail.last}) !=
                     tokensOf(Base, {base.lead.first, base.trail.last}))
            {
                myEdits.conflict(place, place, text.substr(1), {pathText(), "removed here, changed there"});
            }
            myPath.pop_back();
        }
    }

    /// Whether ours has an element of its own behind `before` (null: in the first place).
    static bool isFollowedByNew(std::vector<Element> const& ours, Elements const& elements, Element const* before)
    {
        std::size_t const next = before != nullptr ? static_cast<std::size_t>(before - ours.data()) + 1 : 0;
        return next < ours.size() && elements.at(ours[next].key)[Base] == nullptr &&
               elements.at(ours[next].key)[Theirs] == nullptr;
    }

    /// A blank and a unit of theirs as it goes into ours: on a line of its own, indented as its siblings there, where
    /// it had one.
    std::string inserted(Unit const& unit, std::vector<Element> const& siblings, Layout const& layout) const
    {
        std::string const text = unitSource(Theirs, unit);
        std::string const lead = source(Theirs, {unit.lead.first, firstOf(Theirs, unit)});
        std::size_t const line = lead.rfind('\n');
        if (line == std::string::npos)
        {
            return ' ' + text;
        }
        std::string indent = lead.substr(line + 1);
        for (Element const& sibling : siblings)
        {
            Unit const& other = layout.unit(sibling.item->source);
            std::string const otherLead = source(Ours, {other.lead.first, firstOf(Ours, other)});
            if (std::size_t const otherLine = otherLead.rfind('\n'); otherLine != std::string::npos)
            {
                indent = otherLead.substr(otherLine + 1);
                break;
            }
        }
        return '\n' + indent + indented(text, lead.size() - line - 1, indent);
    }

    /// The lines behind the first moved from one indentation to another. A text with a line end in a string is left.
    static std::string indented(std::string const& text, std::size_t from, std::string const& indent)
    {
        TextTree const tree(text);
        std::string out;
        for (TextTree::Token const& token : tree.tokens())
        {
            std::string_view const piece = tree.textOf(token);
            std::size_t const line = piece.rfind('\n');
            if (token.kind != TextTree::Kind::Blank || line == std::string_view::npos)
            {
                out += piece;
                continue;
            }
            std::size_t const width = piece.size() - line - 1;
            out += piece.substr(0, line + 1);
            out += width >= from ? indent : std::string();
            out += piece.substr(line + 1 + (width >= from ? from : 0));
        }
        return out;
    }

    /// What stands in front of the first expression and behind it.
    bool mergeAround()
    {
        std::array<std::string, 3> before;
        std::array<std::string, 3> behind;
        std::array<Stretch, 3> front;
        std::array<Stretch, 3> back;
        for (Version const version : {Base, Ours, Theirs})
        {
            TextItem const root = myTrees[version].root();
            std::size_t const size = myTrees[version].tokens().size();
            front[version] = {0, root ? root.firstTokenIndex() : size};
            back[version] = {root ? root.lastTokenIndex() + std::size_t{1} : size, size};
            before[version] = tokensOf(version, front[version]);
            behind[version] = tokensOf(version, back[version]);
        }
        return mergeTokens(before, front[Ours], source(Theirs, front[Theirs])) &&
               mergeTokens(behind, back[Ours], source(Theirs, back[Theirs]));
    }

    std::string pathText() const
    {
        std::string text;
        for (std::string const& label : myPath)
        {
            (text += text.empty() ? "" : "/") += label;
        }
        return text;
    }

    std::array<TextTree, 3> const& myTrees;
    MergeEdits myEdits;
    std::vector<std::string> myPath;
};

std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty())
    {
        std::size_t const end = text.find('\n');
        lines.push_back(text.substr(0, end == std::string_view::npos ? end : end + 1));
        text.remove_prefix(lines.back().size());
    }
    return lines;
}

/// Both texts, but for the lines that they begin and end with alike.
MergeResult conflictOfAll(TextTree const& ours, std::string const& theirs, std::string reason,
                          MergeOptions const& options)
{
    std::vector<std::string_view> const a = linesOf(ours.text());
    std::vector<std::string_view> const b = linesOf(theirs);
    std::size_t const shorter = std::min(a.size(), b.size());
    std::size_t begin = 0;
    std::size_t front = 0;
    for (; front < shorter && a[front] == b[front]; ++front)
    {
        begin += a[front].size();
    }
    std::size_t behind = 0;
    for (std::size_t last = 1; last <= shorter - front && a[a.size() - last] == b[b.size() - last]; ++last)
    {
        behind += a[a.size() - last].size();
    }
    MergeEdits edits(ours, options);
    edits.conflict(begin, ours.text().size() - behind, theirs.substr(begin, theirs.size() - behind - begin),
                   {{}, std::move(reason)});
    return edits.apply();
}
} // namespace

MergeResult mergeTexts(std::string const& base, std::string const& ours, std::string const& theirs,
                       MergeOptions const& options)
{
    if (theirs == base || theirs == ours || ours == base)
    {
        return {ours == base ? theirs : ours, {}};
    }
    std::array<TextTree, 3> const trees{TextTree(base), TextTree(ours), TextTree(theirs)};
    for (TextTree const& tree : trees)
    {
        if (!tree.faults().empty())
        {
            return conflictOfAll(trees[Ours], theirs, "not readable as parameter text", options);
        }
    }
    std::optional<MergeResult> merged;
    if (trees[Ours].root() && trees[Theirs].root())
    {
        merged = TextMerge(trees, options).run();
    }
    bool const isGood = merged && (!merged->conflicts.empty() || TextTree(merged->text).faults().empty());
    return isGood ? std::move(*merged) : conflictOfAll(trees[Ours], theirs, "changed on both sides", options);
}
