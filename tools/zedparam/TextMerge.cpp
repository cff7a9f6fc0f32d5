#include "TextMerge.h"

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <optional>

#include "Elements.h"
#include "MergeEdits.h"
#include "MergeSource.h"
#include "XmlLayout.h"

namespace
{
enum Version
{
    Base,
    Ours,
    Theirs
};
using Sources = std::array<std::unique_ptr<MergeSource>, 3>;
using Items = std::array<Item const*, 3>; // the same item in each version, null where it is not

class TextMerge
{
public:
    TextMerge(Sources const& sources, MergeOptions const& options)
        : mySources(sources), myEdits(*sources[Ours], options)
    {
    }

    /// Nothing when the texts as a whole do not go together.
    std::optional<MergeResult> run()
    {
        Items const items{mySources[Base]->root(), mySources[Ours]->root(), mySources[Theirs]->root()};
        if (!items[Ours]->isList() || !items[Theirs]->isList() || !mergeItem(items) || !mergeAround())
        {
            return std::nullopt;
        }
        return myEdits.apply();
    }

private:
    using Stretch = MergeSource::Stretch;
    using Unit = MergeSource::Unit;
    using Layout = MergeSource::Layout;
    using Layouts = std::array<std::optional<Layout>, 3>;
    using Elements = std::map<std::string_view, std::array<Element const*, 3>>;

    // ---- Texts ----

    std::string_view source(Version version, Stretch const& stretch) const { return mySources[version]->at(stretch); }
    std::string tokensOf(Version version, Stretch const& stretch) const
    {
        return mySources[version]->tokensOf(stretch);
    }
    std::string_view source(Version version, Item const& item) const
    {
        return source(version, mySources[version]->stretchOf(item));
    }
    std::string tokensOf(Version version, Item const* item) const
    {
        return item != nullptr ? tokensOf(version, mySources[version]->stretchOf(*item)) : std::string();
    }
    static Stretch stretchOf(Unit const& unit) { return {unit.lead.begin, unit.trail.end}; }
    std::size_t solidBegin(Version version, Unit const& unit) const
    {
        return mySources[version]->solidBegin(unit.lead);
    }
    /// Without the blanks that it begins with.
    std::string_view unitSource(Version version, Unit const& unit) const
    {
        return source(version, {solidBegin(version, unit), unit.trail.end});
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
        bool const isOursAsItWas = items[Base] != nullptr && source(Base, *items[Base]) == source(Ours, *items[Ours]);
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
        myEdits.replace(mySources[Ours]->stretchOf(*items[Ours]), source(Theirs, *items[Theirs]));
        return true;
    }

    /// Whether all versions are members or elements behind a head and perhaps atoms.
    bool areLists(Items const& items) const
    {
        for (Version const version : {Base, Ours, Theirs})
        {
            if (items[version] != nullptr && !mySources[version]->isListOfItems(*items[version]))
            {
                return false;
            }
        }
        return std::ranges::any_of(items, [](Item const* item) { return item != nullptr && item->hasLists(); });
    }

    bool mergeLists(Items const& items)
    {
        Layouts layouts;
        for (Version const version : {Base, Ours, Theirs})
        {
            if (items[version] != nullptr)
            {
                layouts[version] = mySources[version]->layoutOf(*items[version]);
            }
        }
        if (layouts[Theirs]->shape != layouts[Ours]->shape ||
            (layouts[Base] && layouts[Base]->shape != layouts[Ours]->shape))
        {
            return false;
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
        MergeEdits::Mark const mark = myEdits.mark();
        addTheirs(lists, elements, layouts);
        bool const isMerged = mergeStretch(layouts, &Layout::closing);
        if (hasNoContent(*layouts[Ours]) && myEdits.haveAny(mark, layouts[Ours]->body))
        {
            giveContent(*layouts[Ours], source(Theirs, layouts[Theirs]->closing));
        }
        return isMerged;
    }

    static bool hasNoContent(Layout const& layout)
    {
        bool const hasItems =
            std::ranges::any_of(layout.units, [](auto const& unit) { return !unit.second.isAttribute; });
        return !layout.endTag.empty() || (!hasItems && layout.closing.begin == layout.closing.end);
    }

    /// Ends what was added to a list without content as theirs ends it, in front of its end tag too when it had none.
    /// A comment there was merged with the blanks around it.
    void giveContent(Layout const& list, std::string_view closing)
    {
        bool const isBlank = closing.find_first_not_of(" \t\r\n") == std::string_view::npos;
        std::size_t const line = isBlank ? closing.rfind('\n') : std::string_view::npos;
        std::string end(isBlank ? closing.substr(0, line) : std::string_view());
        if (line != std::string_view::npos)
        {
            std::string_view const text = mySources[Ours]->text();
            std::size_t const begin = text.rfind('\n', list.head.begin) + 1;
            end.append("\n").append(text.substr(begin, text.find_first_not_of(" \t", begin) - begin));
        }
        if (!list.endTag.empty())
        {
            myEdits.replace(list.emptyMark, ">");
        }
        myEdits.replace({list.body, list.body}, end + list.endTag);
    }

    /// Of something that has no parts: theirs when ours is as it was.
    bool mergeTokens(std::array<std::string, 3> const& tokens, Stretch const& ours, std::string_view theirs)
    {
        if (tokens[Theirs] == tokens[Base] || tokens[Theirs] == tokens[Ours])
        {
            return true;
        }
        if (tokens[Ours] != tokens[Base])
        {
            return false;
        }
        myEdits.replace(ours, theirs);
        return true;
    }

    bool mergeStretch(Layouts const& layouts, Stretch Layout::*which)
    {
        std::array<std::string, 3> tokens;
        for (Version const version : {Base, Ours, Theirs})
        {
            tokens[version] = layouts[version] ? tokensOf(version, (*layouts[version]).*which) : std::string();
        }
        return mergeTokens(tokens, (*layouts[Ours]).*which, source(Theirs, (*layouts[Theirs]).*which));
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
                units[version] = layouts[version]->units.at(items[version]);
                tokens[version] = tokensOf(version, stretchOf(units[version]));
            }
        }
        Unit const& ours = units[Ours];
        if (items[Theirs] == nullptr)
        {
            if (tokens[Ours] == tokens[Base])
            {
                myEdits.replace(stretchOf(ours), {});
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

    void addConflict(Unit const& ours, std::string_view theirs, char const* reason)
    {
        myEdits.conflict({solidBegin(Ours, ours), ours.trail.end}, theirs, {pathText(), reason});
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
            Unit const& unit = layouts[Theirs]->units.at(element.item);
            Unit const* const behind = before != nullptr ? &layouts[Ours]->units.at(before->item) : nullptr;
            std::size_t const place = behind != nullptr && behind->isAttribute == unit.isAttribute ? behind->trail.end
                                      : unit.isAttribute ? layouts[Ours]->head.end
                                                         : layouts[Ours]->body;
            std::string text = inserted(unit, *layouts[Ours]);
            bool const isFirst = !unit.isAttribute && place == layouts[Ours]->body && hasNoContent(*layouts[Ours]);
            myPath.push_back(element.label);
            if (found[Base] == nullptr)
            {
                if (element.isOrdered && isFollowedByNew(lists[Ours], elements, before))
                {
                    myEdits.conflict({place, place}, std::string_view(text).substr(1),
                                     {pathText(), "added on both sides at one place, where order has a meaning"});
                }
                else
                {
                    // Begins a list as it does there, even without a blank.
                    bool const isGlued = isFirst && source(Theirs, unit.lead).empty() && text.starts_with(" <");
                    myEdits.replace({place, place}, text.substr(isGlued ? 1 : 0));
                }
            }
            else if (Unit const& base = layouts[Base]->units.at(found[Base]->item);
                     tokensOf(Theirs, stretchOf(unit)) != tokensOf(Base, stretchOf(base)))
            {
                myEdits.conflict({place, place}, std::string_view(text).substr(1),
                                 {pathText(), "removed here, changed there"});
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
    std::string inserted(Unit const& unit, Layout const& ours) const
    {
        Stretch const solid{solidBegin(Theirs, unit), unit.trail.end};
        std::string_view const lead = source(Theirs, {unit.lead.begin, solid.begin});
        std::size_t const line = lead.rfind('\n');
        if (line == std::string_view::npos)
        {
            return ' ' + std::string(source(Theirs, solid));
        }
        std::string indent(lead.substr(line + 1));
        for (auto const& [item, sibling] : ours.units)
        {
            std::string_view const its = source(Ours, {sibling.lead.begin, solidBegin(Ours, sibling)});
            std::size_t const itsLine = its.rfind('\n');
            if (sibling.isAttribute == unit.isAttribute && itsLine != std::string_view::npos)
            {
                indent = its.substr(itsLine + 1);
                break;
            }
        }
        return '\n' + indent + mySources[Theirs]->indented(solid, lead.size() - line - 1, indent);
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
            Item const* const root = mySources[version]->root();
            std::size_t const size = mySources[version]->text().size();
            Stretch const its = root != nullptr ? mySources[version]->stretchOf(*root) : Stretch{size, size};
            front[version] = {0, its.begin};
            back[version] = {its.end, size};
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

    Sources const& mySources;
    MergeEdits myEdits;
    std::vector<std::string> myPath;
};

std::vector<std::string_view> wholeLines(std::string_view text)
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
MergeResult conflictOfAll(MergeSource const& ours, std::string const& theirs, std::string reason,
                          MergeOptions const& options)
{
    std::vector<std::string_view> const a = wholeLines(ours.text());
    std::vector<std::string_view> const b = wholeLines(theirs);
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
    edits.conflict({begin, ours.text().size() - behind},
                   std::string_view(theirs).substr(begin, theirs.size() - behind - begin), {{}, std::move(reason)});
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
    bool const areXml = isXml(ours) && isXml(theirs) && (base.empty() || isXml(base));
    Sources sources;
    for (Version const version : {Base, Ours, Theirs})
    {
        std::string const& text = version == Base ? base : version == Ours ? ours : theirs;
        sources[version] = MergeSource::make(text, areXml && !text.empty());
    }
    for (std::unique_ptr<MergeSource> const& source : sources)
    {
        if (!source->isReadable())
        {
            return conflictOfAll(*sources[Ours], theirs,
                                 areXml ? "not readable as XML" : "not readable as parameter text", options);
        }
    }
    std::optional<MergeResult> merged;
    if (sources[Ours]->root() != nullptr && sources[Theirs]->root() != nullptr)
    {
        merged = TextMerge(sources, options).run();
    }
    bool const isGood = merged && (!merged->conflicts.empty() || MergeSource::make(merged->text, areXml)->isReadable());
    return isGood ? std::move(*merged) : conflictOfAll(*sources[Ours], theirs, "changed on both sides", options);
}
