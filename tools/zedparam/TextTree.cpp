#include "TextTree.h"

#include <algorithm>
#include <utility>

#include "AxLimits.h"
#include "AxNumberText.h"

namespace
{
bool isBlank(char byte)
{
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

bool isControl(char byte)
{
    return (static_cast<unsigned char>(byte) < ' ' && !isBlank(byte)) || byte == '\x7F';
}

bool isAtom(char byte)
{
    return static_cast<unsigned char>(byte) > ' ' && byte != '\x7F' && byte != '(' && byte != ')' && byte != '"' &&
           byte != ';';
}

/// Whether a backslash stands in front of what it takes the meaning from.
bool isEscape(std::string_view text, std::size_t at)
{
    return text[at] == '\\' && at + 1 < text.size() && (text[at + 1] == '"' || text[at + 1] == '\\');
}

bool isNumberToken(std::string_view token)
{
    double value = 0.0;
    return axIsNumber(token) && axParseReal(token, value);
}
} // namespace

/// Cuts the text and puts the tree together. Open lists wait on a stack of their own, so depth costs no call.
struct TextTree::Builder
{
    explicit Builder(TextTree& itsTree) : tree(itsTree), text(itsTree.myText) {}

    void build()
    {
        if (text.starts_with(theByteOrderMark))
        {
            add(Kind::Blank, theByteOrderMark.size());
        }
        if (AxlSyntaxError::isUtf16(text.substr(at)))
        {
            noteFault(AxlSyntaxError::utf16());
            add(Kind::Fault, text.size() - at);
        }
        while (at < text.size())
        {
            readToken();
        }
        if (!open.empty() && !isCutOff)
        {
            Place const innermost = tree.place(tree.myTokens[tree.myNodes[open.back()].firstToken].begin);
            noteFault(AxlSyntaxError::unclosedList(innermost.line, innermost.column));
        }
        while (!open.empty())
        {
            close();
        }
    }

    void readToken()
    {
        char const byte = text[at];
        if (isBlank(byte))
        {
            add(Kind::Blank, lengthWhile(isBlank));
        }
        else if (byte == ';')
        {
            add(Kind::Comment, std::min(text.find('\n', at), text.size()) - at);
        }
        else if (byte == '(')
        {
            readOpen();
        }
        else if (byte == ')')
        {
            readClose();
        }
        else if (byte == '"')
        {
            readString();
        }
        else if (isControl(byte))
        {
            readControlBytes();
        }
        else
        {
            std::size_t const length = lengthWhile(isAtom);
            addAtom(isNumberToken(text.substr(at, length)) ? Kind::Number : Kind::Word, length);
        }
    }

    void readOpen()
    {
        if (open.size() == axLimits.cellNesting)
        {
            isCutOff = true;
            addFault("nesting-limit", "lists are nested deeper than " + std::to_string(axLimits.cellNesting),
                     text.size() - at);
            return;
        }
        Index const list = addNode();
        add(Kind::Open, 1, list);
        open.push_back(list);
        last.push_back(none);
    }

    void readClose()
    {
        if (open.empty())
        {
            addFault("stray-parenthesis", "expected \"(\" or the end of the text, found \")\", which closes no list",
                     1);
            return;
        }
        add(Kind::Close, 1, open.back());
        close();
    }

    void readString()
    {
        std::size_t end = at + 1;
        while (end < text.size() && text[end] != '"')
        {
            end += isEscape(text, end) ? 2 : 1;
        }
        if (end >= text.size())
        {
            isCutOff = true;
            addFault("unclosed-string", "the string is not closed, expected '\"' before the end of the text",
                     text.size() - at);
            return;
        }
        addAtom(Kind::String, end + 1 - at);
    }

    void readControlBytes()
    {
        static constexpr char theDigits[] = "0123456789abcdef";
        auto const byte = static_cast<unsigned char>(text[at]);
        addFault("control-byte",
                 std::string("expected text, found the control byte 0x") + theDigits[byte >> 4] + theDigits[byte & 15] +
                     " outside of a string",
                 lengthWhile(isControl));
    }

    template <class Accept>
    std::size_t lengthWhile(Accept accept) const
    {
        auto const end = std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), accept);
        return static_cast<std::size_t>(end - text.begin()) - at;
    }

    void addAtom(Kind kind, std::size_t length)
    {
        std::size_t const quotes = kind == Kind::String ? 2 : 0;
        if (length > axLimits.tokenSize + quotes)
        {
            addFault("token-limit", "token is longer than " + std::to_string(axLimits.tokenSize) + " bytes", length);
            return;
        }
        add(kind, length, addNode());
    }

    void addFault(char const* code, std::string message, std::size_t length)
    {
        Place const place = tree.place(at);
        noteFault(AxlSyntaxError(code, std::move(message), place.line, place.column));
        add(Kind::Fault, length);
    }

    void noteFault(AxlSyntaxError const& fault)
    {
        bool const isBehindFirst = !tree.myNodes.empty() && (open.empty() || open.front() != 0);
        tree.myIsReadable = tree.myIsReadable && isBehindFirst;
        tree.myFaults.push_back(fault);
    }

    void add(Kind kind, std::size_t length, Index item = none)
    {
        tree.myTokens.push_back({static_cast<std::uint32_t>(at), static_cast<std::uint32_t>(at + length), kind, item});
        at += length;
    }

    /// An item that begins, and so far ends, with the next token.
    Index addNode()
    {
        auto const node = static_cast<Index>(tree.myNodes.size());
        auto const token = static_cast<Index>(tree.myTokens.size());
        tree.myNodes.push_back({token, token, open.empty() ? none : open.back()});
        Index& before = open.empty() ? lastAtTop : last.back();
        if (before != none)
        {
            tree.myNodes[before].next = node;
        }
        else if (!open.empty())
        {
            tree.myNodes[open.back()].firstChild = node;
        }
        before = node;
        return node;
    }

    void close()
    {
        tree.myNodes[open.back()].lastToken = static_cast<Index>(tree.myTokens.size() - 1);
        open.pop_back();
        last.pop_back();
    }

    TextTree& tree;
    std::string_view text;
    std::size_t at = 0;
    std::vector<Index> open;
    std::vector<Index> last; // child of each open list
    Index lastAtTop = none;
    bool isCutOff = false; // nothing more is told of what stays open
};

TextTree::TextTree(std::string text) : myText(std::move(text))
{
    bool const isMarked = myText.starts_with(theByteOrderMark);
    myLineStarts.push_back(isMarked ? static_cast<std::uint32_t>(theByteOrderMark.size()) : 0);
    for (std::size_t end = myText.find('\n'); end != std::string::npos; end = myText.find('\n', end + 1))
    {
        myLineStarts.push_back(static_cast<std::uint32_t>(end + 1));
    }
    Builder(*this).build();
}

TextItem TextTree::root() const
{
    return myNodes.empty() ? TextItem() : TextItem(this, 0);
}

TextItem TextTree::itemAt(std::size_t offset) const
{
    auto token = std::ranges::upper_bound(myTokens, offset, {}, &Token::begin);
    if (token == myTokens.begin() || offset >= myText.size())
    {
        return {};
    }
    --token;
    if (token->item != none)
    {
        return TextItem(this, token->item);
    }
    // Blanks, comments and faults belong to the list around them.
    while (token != myTokens.begin())
    {
        --token;
        if (token->item != none)
        {
            TextItem const before(this, token->item);
            return token->kind == Kind::Open ? before : before.parent();
        }
    }
    return {};
}

TextTree::Place TextTree::place(std::size_t offset) const
{
    auto const next = std::ranges::upper_bound(myLineStarts, offset);
    auto const line = next == myLineStarts.begin() ? next : next - 1;
    return {static_cast<std::uint32_t>(line - myLineStarts.begin() + 1),
            static_cast<std::uint32_t>(std::max<std::size_t>(offset, *line) - *line + 1)};
}

std::size_t TextTree::offset(Place place) const
{
    if (place.line == 0 || place.line > myLineStarts.size())
    {
        return place.line == 0 ? 0 : myText.size();
    }
    std::size_t const start = myLineStarts[place.line - 1];
    std::size_t const end = place.line < myLineStarts.size() ? myLineStarts[place.line] - 1 : myText.size();
    return std::min(start + std::max(place.column, 1U) - 1, end);
}

bool TextItem::isClosed() const
{
    return !isList() || (lastToken().kind == TextTree::Kind::Close && lastToken().item == myIndex);
}

std::string_view TextItem::source() const
{
    return myTree != nullptr ? std::string_view(myTree->myText).substr(begin(), end() - begin()) : std::string_view();
}

TextTree::Place TextItem::place() const
{
    return myTree != nullptr ? myTree->place(begin()) : TextTree::Place{0, 0};
}

std::string TextItem::value() const
{
    if (isList())
    {
        return {};
    }
    std::string_view const text = source();
    if (!isString())
    {
        return std::string(text);
    }
    std::string value;
    for (std::size_t at = 1; at + 1 < text.size(); ++at)
    {
        at += isEscape(text, at) ? 1 : 0;
        value += text[at];
    }
    return value;
}

std::string TextItem::head() const
{
    return firstChild().value();
}

TextItem TextItem::find(std::string_view keyword) const
{
    TextItem found;
    for (TextItem item = firstValue(); item; item = item.next())
    {
        if (item.isList() && item.head() == keyword)
        {
            found = item;
        }
    }
    return found;
}
