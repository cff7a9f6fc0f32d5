#include "TextEditor.h"

#include <algorithm>
#include <list>
#include <span>
#include <utility>

#include "AxComponentSystemDescriptor.h"
#include "AxReaderWriterFile.h"
#include "AxlPrint.h"
#include "EditedValue.h"
#include "NamedElement.h"
#include "PathSteps.h"
#include "TextPlacement.h"

namespace
{
using Kind = TextTree::Kind;

bool isVariable(TextItem list)
{
    return list.parent().head() == "variable-bindings";
}

/// Appends the texts of the tokens in a range of bytes, blanks left out.
void appendSubstance(std::vector<std::string_view>& out, TextTree const& tree, std::size_t begin, std::size_t end)
{
    auto token = std::ranges::lower_bound(tree.tokens(), begin, {}, &TextTree::Token::begin);
    for (; token != tree.tokens().end() && token->end <= end; ++token)
    {
        if (token->kind != Kind::Blank)
        {
            out.push_back(tree.textOf(*token));
        }
    }
}

/// Whether a path may go on in the list.
bool holdsNamedItems(TextItem list)
{
    bool isFound = false;
    for (TextItem item = list.firstValue(); item && !isFound; item = item.next())
    {
        isFound = item.isList() && (item.firstChild().isWord() || item.firstChild().isString());
    }
    return isFound;
}

/// The item and those behind it.
std::vector<TextItem> itemsFrom(TextItem item)
{
    std::vector<TextItem> items;
    for (; item; item = item.next())
    {
        items.push_back(item);
    }
    return items;
}
} // namespace

TextEditor::TextEditor(std::string const& file, std::string text, TextReading& reading, bool force)
    : FileEditor(file, std::move(text), force), myReading(reading)
{
    TextTree const tree(myText);
    myReading.read(tree);
    myFindings = myReading.findings();
}

bool TextEditor::set(std::string const& path, std::string const& value)
{
    TextTree const tree(myText);
    TextPath const place = TextPath::follow(path, tree, myReading);
    if (!place.fault.empty())
    {
        return refuseAt(place.lists.empty() ? TextItem() : place.lists.back(), "no-path", place.fault, place.hint);
    }
    return place.isWhole() ? replaceValue(tree, place, value) : insert(tree, place, value);
}

bool TextEditor::isKnown(TextPath const& path) const
{
    bool const isNamedValue = path.outer != nullptr && path.outer->isValue(); // such as a signature
    return path.rw != nullptr || isNamedValue || isVariable(path.lists.back()) ||
           isLeadingItem(path.lists.back().head());
}

bool TextEditor::replaceValue(TextTree const& tree, TextPath const& path, std::string const& value)
{
    TextItem const list = path.lists.back();
    if (!isKnown(path) && !force())
    {
        return refuseUnknown(path, path.lists[path.lists.size() - 2], path.outer, path.names.back());
    }
    bool const namesFile = dynamic_cast<AxReaderWriterFile const*>(path.rw) != nullptr && !list.firstValue().isList();
    if (path.rw != nullptr && !namesFile && holdsItems(*path.rw))
    {
        std::vector<std::string> const names = namesIn(list, path.rw);
        return refuseAt(list, "no-value", "\"" + path.names.back() + "\" is not one value; name one that is in it",
                        names.empty() ? std::string() : "such as \"" + path.names.back() + "/" + names.front() + "\"");
    }
    std::string given = value;
    std::string fault;
    if (!toOwnUnit(given, path.rw, path.names.back(), fault) && !force())
    {
        return refuseAt(list.firstValue() ? list.firstValue() : list, "wrong-kind", fault);
    }
    std::string const text = valueText(given, path.rw, path.outer);
    if (text.empty())
    {
        return refuseAt(list, "no-value", "\"" + value + "\" is no value");
    }
    if (path.rw != nullptr &&
        !accepts(*path.rw, path.outer, list.firstValue() ? list.firstValue() : list, list.head(), text))
    {
        return false;
    }
    TextTree const wanted(text);
    std::vector<TextItem> const before = itemsFrom(list.firstValue());
    std::vector<TextItem> const after = itemsFrom(wanted.root());
    std::vector<Patch> patches;
    if (before.size() == after.size())
    {
        for (std::size_t i = 0; i < before.size(); ++i)
        {
            std::string bytes(after[i].source());
            if (before[i].isString() && !after[i].isString() && isLeadingItem(path.names.back()))
            {
                bytes.clear();
                axAppendQuoted(bytes, after[i].value());
            }
            if (before[i].source() != bytes)
            {
                patches.push_back({before[i].begin(), before[i].end(), std::move(bytes)});
            }
        }
    }
    else if (before.empty())
    {
        patches.push_back({list.firstChild().end(), list.firstChild().end(), " " + text});
    }
    else
    {
        patches.push_back({before.front().begin(), before.back().end(), text});
    }
    if (patches.empty())
    {
        return true;
    }
    std::string const old = shownItem(list.source());
    TextTree::Place const at = list.place();
    if (!apply(tree, patches))
    {
        return false;
    }
    TextTree const changed(myText);
    note({path.text, at.line, at.column, {}, old, shownItem(changed.itemAt(changed.offset(at)).source())});
    return true;
}

bool TextEditor::insert(TextTree const& tree, TextPath const& path, std::string const& value)
{
    TextItem const list = path.lists.back();
    std::string const& keyword = path.missing();
    std::span<std::string const> const names = std::span(path.names).subspan(path.lists.size() - 1);
    bool const isBinding = names.size() == 2 && keyword == "variable-bindings" && list == tree.root();
    bool isKnownKeyword = isBinding || (names.size() == 1 && list.head() == "variable-bindings");
    AxReaderWriter* member = path.rw;
    AxReaderWriter* map = nullptr; // that holds the value under its name
    for (std::string const& name : names)
    {
        map = &name == &names.back() && holdsNamedValues(member) ? member : nullptr;
        isKnownKeyword = isKnownKeyword || map != nullptr;
        AxReaderWriterRegistry const* const members = isKnownKeyword ? nullptr : membersIn(member);
        AxReaderWriter* const found = members != nullptr ? members->find(AxSymbolString(AxString(name))) : nullptr;
        if (found == nullptr && !isKnownKeyword && !force())
        {
            return refuseUnknown(path, member == path.rw ? list : TextItem(), member, name);
        }
        member = found;
    }
    if (!list.isList())
    {
        return refuseAt(list, "no-list", "expected a list (name item...)");
    }
    if (member != nullptr && dynamic_cast<AxReaderWriterFile const*>(member) == nullptr && holdsItems(*member))
    {
        return refuseAt(list, "no-value", "\"" + names.back() + "\" is not one value; name one that is in it");
    }
    std::string given = value;
    std::string fault;
    if (!toOwnUnit(given, member, names.back(), fault) && !force())
    {
        return refuseAt(list, "wrong-kind", fault);
    }
    std::string const text = valueText(given, member, map);
    if (text.empty())
    {
        return refuseAt(list, "no-value", "\"" + value + "\" is no value");
    }
    std::string const entry = map != nullptr ? namedValueText(*map, names.back(), text) : text;
    if ((member != nullptr && !accepts(*member, nullptr, list, names.back(), text)) ||
        (map != nullptr && !accepts(*map, nullptr, list, map->name().string().string(), entry)))
    {
        return false;
    }
    std::string item;
    std::size_t const lists = names.size() - (map != nullptr ? 1 : 0);
    for (std::string const& name : names.first(lists))
    {
        item += '(';
        axAppendName(item, AxSymbolString(AxString(name)));
        item += ' ';
    }
    item.append(entry).append(lists, ')');
    TextPlacement const placement = TextPlacement::find(tree, list, keyword, membersIn(path.rw));
    if (!apply(tree, {{placement.offset, placement.offset, placement.before + item + placement.behind}}))
    {
        return false;
    }
    TextTree::Place const at = TextTree(myText).place(placement.offset + placement.before.size());
    note({path.text, at.line, at.column, {}, {}, shownItem(item)});
    return true;
}

bool TextEditor::unset(std::string const& path)
{
    TextTree const tree(myText);
    TextPath const place = TextPath::follow(path, tree, myReading);
    if (!place.fault.empty() || !place.isWhole())
    {
        TextItem const list = place.lists.empty() ? TextItem() : place.lists.back();
        return place.fault.empty() ? refuseUnknown(place, list, nullptr, place.missing())
                                   : refuseAt(list, "no-path", place.fault, place.hint);
    }
    TextItem const list = place.lists.back();
    if (holdsComment(tree, list.begin(), list.end()) && !force())
    {
        return refuseAt(list, "comment-lost", "a comment stands in \"" + place.names.back() + "\" and would be lost",
                        "--force takes it out all the same");
    }
    std::string const old = shownItem(list.source());
    TextTree::Place const at = list.place();
    TextRemoval const removal = TextRemoval::find(tree, list);
    if (!apply(tree, {{removal.begin, removal.end, {}}}))
    {
        return false;
    }
    note({path, at.line, at.column, {}, old, {}});
    return true;
}

std::vector<std::string> TextEditor::stepsBehind(std::string const& path, bool onlyThere)
{
    TextTree const tree(myText);
    TextPath place;
    if (path.empty())
    {
        place.lists.push_back(tree.root());
        place.rw = myReading.read(tree);
    }
    else
    {
        place = TextPath::follow(path, tree, myReading);
    }
    if (!place.isWhole())
    {
        return {};
    }
    PathSteps steps;
    for (TextItem item = place.lists.back().firstValue(); item; item = item.next())
    {
        bool const leadsOn = holdsNamedItems(item);
        std::string const head = item.isList() ? item.head() : std::string();
        if (!onlyThere || !isClassWord(head))
        {
            steps.add(head, ownName(item), memberOf(place.rw, head), leadsOn);
        }
    }
    return steps.all(onlyThere ? nullptr : place.rw);
}

/// Whether the member takes the value, and holds it to make sense.
bool TextEditor::accepts(AxReaderWriter& member, AxReaderWriter const* outer, TextItem place, std::string const& name,
                         std::string const& value)
{
    std::string list = "(";
    axAppendName(list, AxSymbolString(AxString(name)));
    bool const isTaken = myReading.readInto(member, list.append(" ").append(value).append(")"));
    AxDiagnostic const fault = valueFault(member, outer, name, value, isTaken, myReading.findings());
    return fault.code.empty() || force() || refuseAt(place, fault.code, fault.text, fault.hint);
}

bool TextEditor::apply(TextTree const& tree, std::vector<Patch> const& patches)
{
    std::string text;
    std::vector<std::string_view> expected;
    std::size_t at = 0;
    bool losesComment = false;
    std::list<TextTree> inserted;
    for (Patch const& patch : patches)
    {
        text.append(myText, at, patch.begin - at).append(patch.bytes);
        appendSubstance(expected, tree, at, patch.begin);
        appendSubstance(expected, inserted.emplace_back(patch.bytes), 0, patch.bytes.size());
        losesComment = losesComment || (!patch.bytes.empty() && holdsComment(tree, patch.begin, patch.end));
        at = patch.end;
    }
    text.append(myText, at);
    appendSubstance(expected, tree, at, myText.size());

    TextItem const place = tree.itemAt(patches.front().begin);
    if (losesComment)
    {
        return refuseAt(place, "comment-lost", "a comment stands in the value and would be lost");
    }
    TextTree const changed(text);
    std::vector<std::string_view> actual;
    appendSubstance(actual, changed, 0, text.size());
    if (actual != expected || (tree.isReadable() && !changed.isReadable()))
    {
        return refuseAt(place, "unreadable", "the change would alter what stands beside it");
    }
    bool const wasKnown = myReading.read(tree) != nullptr;
    if (myReading.read(changed) == nullptr && wasKnown && !force())
    {
        std::vector<AxDiagnostic> const& findings = myReading.findings();
        return refuseAt(place, "unreadable",
                        findings.empty() ? "the library would no longer know what the file is" : findings.front().text);
    }
    AxDiagnostic const* const finding = firstNew(myReading.findings(), myFindings);
    if (finding != nullptr && !force())
    {
        return refuseAt(place, finding->code, finding->text, finding->hint);
    }
    myFindings = myReading.findings();
    myText = std::move(text);
    return true;
}

bool TextEditor::refuseUnknown(TextPath const& path, TextItem list, AxReaderWriter const* rw, std::string const& name)
{
    std::string hint = nearestHint(name, namesIn(list, rw));
    auto const* const system = dynamic_cast<AxComponentSystemDescriptor const*>(rw);
    if (hint.empty() && system != nullptr && system->systemDefinitionFile().foundFilename().isNull())
    {
        hint = "its definition file was not read; --database names the database that binds its variables";
    }
    bool const isThere = path.isWhole();
    std::string const owner = list.head().empty() && rw != nullptr ? rw->name().string().string() : list.head();
    return refuseAt(path.lists.back(), "unknown-keyword",
                    "\"" + owner + "\" " + (isThere ? "knows" : "has") + " no \"" + name + "\"", hint);
}

bool TextEditor::refuseAt(TextItem place, std::string code, std::string text, std::string hint)
{
    TextTree::Place const at = place.place();
    return refuse(at.line, at.column, std::move(code), std::move(text), std::move(hint));
}
