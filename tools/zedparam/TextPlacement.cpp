#include "TextPlacement.h"

#include <algorithm>
#include <cstdint>

namespace
{
using Kind = TextTree::Kind;
using Token = TextTree::Token;

/// The line end in front of an item and the indentation behind it; empty when the item begins no line.
std::string_view lineStart(TextTree const& tree, TextItem item)
{
    if (!item || item.firstTokenIndex() == 0)
    {
        return {};
    }
    Token const& before = tree.tokens()[item.firstTokenIndex() - 1];
    std::string_view const blank = tree.textOf(before);
    std::size_t const lineEnd = blank.rfind('\n');
    if (before.kind != Kind::Blank || lineEnd == std::string_view::npos)
    {
        return {};
    }
    return blank.substr(lineEnd > 0 && blank[lineEnd - 1] == '\r' ? lineEnd - 1 : lineEnd);
}

/// The comment that ends the line which an item ends on; null when none does.
Token const* commentBehind(TextTree const& tree, TextItem item)
{
    for (std::size_t next = item.lastTokenIndex() + std::size_t(1); next < tree.tokens().size(); ++next)
    {
        Token const& token = tree.tokens()[next];
        if (token.kind == Kind::Comment)
        {
            return &token;
        }
        if (token.kind != Kind::Blank || tree.textOf(token).find('\n') != std::string_view::npos)
        {
            break;
        }
    }
    return nullptr;
}

/// What the new item comes behind: the list's head, what leads it, or an item.
TextItem predecessor(TextItem list, std::string const& name, AxReaderWriterRegistry const* members)
{
    if (name == "variable-bindings") // stands right behind the type
    {
        TextItem const first = list.firstValue();
        return first.isList() && first.head().ends_with("-type") ? first : list.firstChild();
    }
    std::size_t const order = orderOf(members, name);
    TextItem behindSmaller;
    TextItem beforeLarger;
    TextItem last;
    for (TextItem item = list.firstChild(); item; item = item.next())
    {
        std::size_t const its = item.isList() && order != SIZE_MAX ? orderOf(members, item.head()) : SIZE_MAX;
        if (its < order)
        {
            behindSmaller = item;
        }
        else if (its != SIZE_MAX && its > order && !beforeLarger)
        {
            beforeLarger = last;
        }
        last = item;
    }
    return behindSmaller ? behindSmaller : beforeLarger ? beforeLarger : last;
}
} // namespace

std::size_t orderOf(AxReaderWriterRegistry const* members, std::string const& name)
{
    AxSymbolString const keyword = AxSymbolString::find(name);
    AxReaderWriter const* const member = members != nullptr && !keyword.isNull() ? members->find(keyword) : nullptr;
    for (std::size_t i = 0; member != nullptr && i < members->size(); ++i)
    {
        if (members->entry(i).member == member)
        {
            return i;
        }
    }
    return SIZE_MAX;
}

TextPlacement TextPlacement::find(TextTree const& tree, TextItem list, std::string const& name,
                                  AxReaderWriterRegistry const* members)
{
    TextItem const before = predecessor(list, name, members);
    if (!before)
    {
        return {list.begin() + 1, ""};
    }
    std::string separator(before == list.firstChild() ? std::string_view() : lineStart(tree, before));
    for (TextItem item = list.firstValue(); item && separator.empty(); item = item.next())
    {
        separator = lineStart(tree, item);
    }
    if (separator.empty() && !list.firstValue() && (list == tree.root() || !lineStart(tree, list).empty()))
    {
        separator = list == tree.root() ? "\n" : std::string(lineStart(tree, list));
        separator += "  ";
    }
    Token const* const comment = separator.empty() ? nullptr : commentBehind(tree, before);
    if (comment != nullptr)
    {
        std::size_t const indentation = separator.find('\n') + 1;
        return {comment->end + std::size_t(1), separator.substr(indentation), separator.substr(0, indentation)};
    }
    return {before.end(), separator.empty() ? " " : separator};
}

TextRemoval TextRemoval::find(TextTree const& tree, TextItem item)
{
    if (Token const* const comment = commentBehind(tree, item))
    {
        return {item.begin(), comment->begin};
    }
    std::vector<Token> const& tokens = tree.tokens();
    std::size_t const first = item.firstTokenIndex();
    std::size_t const next = item.lastTokenIndex() + std::size_t(1);
    bool const followsBlank = first > 0 && tokens[first - 1].kind == Kind::Blank;
    std::string_view const line = lineStart(tree, item);
    if (!followsBlank)
    {
        return {item.begin(), item.end()};
    }
    // The end of a comment's line must stay in front of whatever comes on the item's line.
    bool const endsComment = first > 1 && tokens[first - 2].kind == Kind::Comment &&
                             tree.textOf(tokens[first - 1]).find('\n') == tree.textOf(tokens[first - 1]).rfind('\n');
    bool const isLast = next >= tokens.size() || tokens[next].kind != Kind::Blank ||
                        tree.textOf(tokens[next]).find('\n') == std::string_view::npos;
    if (endsComment && isLast)
    {
        return {item.begin(), item.end()};
    }
    return {line.empty() ? tokens[first - 1].begin : item.begin() - line.size(), item.end()};
}

bool holdsComment(TextTree const& tree, std::size_t begin, std::size_t end)
{
    auto token = std::ranges::lower_bound(tree.tokens(), begin, {}, &Token::begin);
    for (; token != tree.tokens().end() && token->begin < end; ++token)
    {
        if (token->kind == Kind::Comment)
        {
            return true;
        }
    }
    return false;
}
