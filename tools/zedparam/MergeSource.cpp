#include "MergeSource.h"

#include <algorithm>
#include <cctype>

#include "AxEnvXMLReader.h"
#include "XmlText.h"

namespace
{
constexpr std::string_view theSpaces = " \t\r\n";

class TextSource : public MergeSource
{
public:
    explicit TextSource(std::string const& text) : myTree(text), myRoot(rootOf(myTree)) {}

    std::string const& text() const override { return myTree.text(); }
    bool isReadable() const override { return myTree.faults().empty(); }
    Item const* root() const override { return myTree.root() ? &myRoot : nullptr; }
    Stretch stretchOf(Item const& item) const override { return {item.source.begin(), item.source.end()}; }
    bool isListOfItems(Item const& item) const override { return item.isList() && item.isRegular(); }

    Layout layoutOf(Item const& list) const override
    {
        Layout layout;
        std::size_t next = list.source.firstTokenIndex() + 1;
        std::size_t headEnd = next;
        bool isHead = true;
        auto item = list.items.begin();
        for (TextItem child = list.source.firstChild(); child; child = child.next())
        {
            std::size_t const behind = child.lastTokenIndex() + std::size_t{1};
            Unit const unit{{beginOf(next), child.begin()}, {child.end(), beginOf(behindTrail(behind))}};
            next = behindTrail(behind);
            isHead = isHead && !child.isList();
            headEnd = isHead ? next : headEnd;
            if (item != list.items.end() && item->source == child)
            {
                layout.units.emplace(&*item++, unit);
            }
        }
        layout.head = {list.source.begin(), beginOf(headEnd)};
        layout.body = layout.head.end;
        layout.closing = {beginOf(next), beginOf(list.source.lastTokenIndex())};
        return layout;
    }

    bool endsInLineComment(std::string_view piece) const override
    {
        TextTree const tree{std::string(piece)};
        return !tree.tokens().empty() && tree.tokens().back().kind == TextTree::Kind::Comment;
    }
    bool isBehindLineComment(std::size_t offset) const override
    {
        auto const& all = myTree.tokens();
        auto const token = std::ranges::lower_bound(all, offset, {}, &TextTree::Token::end);
        return token != all.end() && token->end == offset && token->kind == TextTree::Kind::Comment;
    }

protected:
    std::vector<Token> tokens(Stretch const& stretch) const override
    {
        std::vector<Token> result;
        auto token = std::ranges::lower_bound(myTree.tokens(), stretch.begin, {}, &TextTree::Token::begin);
        for (; token != myTree.tokens().end() && token->end <= stretch.end; ++token)
        {
            result.push_back({myTree.textOf(*token), token->kind == TextTree::Kind::Blank     ? Kind::Blank
                                                     : token->kind == TextTree::Kind::Comment ? Kind::LineComment
                                                                                              : Kind::Other});
        }
        return result;
    }

private:
    static Item rootOf(TextTree const& tree) { return tree.root() ? itemOf(tree.root()) : Item(); }

    std::size_t beginOf(std::size_t token) const
    {
        auto const& all = myTree.tokens();
        return token < all.size() ? all[token].begin : text().size();
    }
    std::size_t behindTrail(std::size_t token) const
    {
        auto const& all = myTree.tokens();
        auto const kindAt = [&](std::size_t i) { return i < all.size() ? all[i].kind : TextTree::Kind::Fault; };
        bool const hasBlank =
            kindAt(token) == TextTree::Kind::Blank && myTree.textOf(all[token]).find('\n') == std::string_view::npos;
        std::size_t const comment = token + (hasBlank ? 1 : 0);
        return kindAt(comment) == TextTree::Kind::Comment ? comment + 1 : token;
    }

    TextTree myTree;
    Item myRoot;
};

/// Elements are lists of their attributes and children. One that holds other text than blanks is taken as a whole.
class XmlSource : public MergeSource
{
public:
    explicit XmlSource(std::string const& text) : myText(text)
    {
        std::size_t const begin = text.starts_with("\xEF\xBB\xBF") ? 3 : 0;
        bool const isWide = text.starts_with("\xFE\xFF") || text.starts_with("\xFF\xFE");
        AxEnvironmentPtr const tree = AxEnvXMLReader::readText(text, AxFilename(), &myIsReadable, false);
        myIsReadable = myIsReadable && !isWide && text.find('\0') == std::string::npos;
        if (myIsReadable)
        {
            myRoot = itemOf(static_cast<AxEnvObject const&>(*tree->root()));
            dropTags(myRoot);
            for (std::size_t line = begin; line != 0 || myLines.empty(); line = text.find('\n', line) + 1)
            {
                myLines.push_back(line);
            }
            XmlText::Range encoding{};
            bool const isTold =
                text.compare(begin, 5, "<?xml") == 0 && XmlText::findAttribute(text, begin, "encoding", encoding);
            myEncoding = isTold ? text.substr(encoding.begin, encoding.end - encoding.begin) : "UTF-8";
            std::ranges::transform(myEncoding, myEncoding.begin(),
                                   [](unsigned char byte) { return static_cast<char>(std::toupper(byte)); });
        }
    }

    std::string const& text() const override { return myText; }
    bool isReadable() const override { return myIsReadable; }
    Item const* root() const override { return myIsReadable ? &myRoot : nullptr; }
    Stretch stretchOf(Item const& item) const override
    {
        std::size_t const begin = beginOf(item);
        return {begin,
                isElement(begin) ? XmlText::elementEnd(myText, begin) : XmlText::attributeValue(myText, begin).end + 1};
    }
    bool isListOfItems(Item const& item) const override
    {
        return isElement(beginOf(item)) && std::ranges::all_of(item.items, &Item::isList);
    }

    Layout layoutOf(Item const& list) const override
    {
        Layout layout;
        auto const [begin, end] = stretchOf(list);
        layout.head = {begin, myText.find_first_of(" \t\r\n/>", begin)};
        layout.body = XmlText::tagEnd(myText, begin);
        bool const isEmpty = myText[layout.body - 2] == '/';
        layout.shape.append(myEncoding).append(at(layout.head)).append(" ").append(list.text);
        if (isEmpty)
        {
            layout.emptyMark = {layout.body - 2, layout.body};
            layout.endTag.append("</").append(at(layout.head).substr(1)).append(">");
        }
        std::size_t const first = myText.find_first_not_of(theSpaces, layout.head.end);
        if (std::string_view(myText).substr(first, myText.find_first_of("= \t\r\n", first) - first) == "name")
        {
            layout.head.end = XmlText::attributeValue(myText, first).end + 1;
        }
        std::size_t next = layout.body;
        for (Item const& item : list.items)
        {
            Stretch const its = stretchOf(item);
            Unit& unit = layout.units[&item];
            if (!isElement(its.begin))
            {
                unit = {{myText.find_last_not_of(theSpaces, its.begin - 1) + 1, its.begin}, {its.end, its.end}, true};
            }
            else
            {
                unit = {{next, its.begin}, {its.end, behindTrail(its.end)}};
                next = unit.trail.end;
            }
        }
        layout.closing = {next, isEmpty ? next : myText.rfind("</", end - 1)};
        return layout;
    }

    bool endsInLineComment(std::string_view) const override { return false; }
    bool isBehindLineComment(std::size_t) const override { return false; }

protected:
    std::vector<Token> tokens(Stretch const& stretch) const override
    {
        std::string_view piece = at(stretch);
        std::vector<Token> result;
        bool isInTag = !piece.empty() && piece[0] != '<' && theSpaces.find(piece[0]) == std::string_view::npos;
        while (!piece.empty())
        {
            std::size_t const size = tokenSize(piece, isInTag);
            std::string_view const token = piece.substr(0, size);
            bool const isBlank = token.find_first_not_of(theSpaces) == std::string_view::npos;
            result.push_back({token, isBlank ? Kind::Blank : Kind::Other});
            isInTag = token == ">" || token == "/>" || isMarked(token) ? false : isInTag || token[0] == '<';
            piece.remove_prefix(size);
        }
        return result;
    }

private:
    /// Items that stand for tags have no bytes of their own.
    static void dropTags(Item& item)
    {
        std::erase_if(
            item.items, [&item](Item const& part)
            { return part.isList() && part.place.line == item.place.line && part.place.column == item.place.column; });
        std::ranges::for_each(item.items, dropTags);
    }

    static bool isMarked(std::string_view token) { return token.starts_with("<!") || token.starts_with("<?"); }

    /// Of a comment and the like, of the beginning of a tag, of what stands between blanks in one, of a text.
    static std::size_t tokenSize(std::string_view piece, bool isInTag)
    {
        auto const behind = [piece](std::string_view mark)
        {
            std::size_t const at = piece.find(mark);
            return at == std::string_view::npos ? piece.size() : at + mark.size();
        };
        if (isMarked(piece))
        {
            return behind(piece.starts_with("<!--")        ? "-->"
                          : piece.starts_with("<![CDATA[") ? "]]>"
                          : piece[1] == '?'                ? "?>"
                                                           : ">");
        }
        std::size_t const solid = std::min(piece.find_first_not_of(theSpaces), piece.size());
        if (solid != 0 && (isInTag || solid == piece.size() || piece[solid] == '<'))
        {
            return solid;
        }
        if (!isInTag && piece[0] != '<')
        {
            return std::min(piece.find('<'), piece.size());
        }
        if (piece[0] == '>' || piece.starts_with("/>"))
        {
            return piece[0] == '>' ? 1 : 2;
        }
        std::size_t at = 1;
        while (at < piece.size() && theSpaces.find(piece[at]) == std::string_view::npos && piece[at] != '>' &&
               piece.substr(at, 2) != "/>")
        {
            bool const isQuote = piece[at] == '"' || piece[at] == '\'';
            at = isQuote ? std::min(piece.find(piece[at], at + 1), piece.size() - 1) + 1 : at + 1;
        }
        return at;
    }

    std::size_t beginOf(Item const& item) const
    {
        return std::min(myLines[std::min<std::size_t>(item.place.line, myLines.size()) - 1] + item.place.column - 1,
                        myText.size());
    }
    bool isElement(std::size_t begin) const { return begin < myText.size() && myText[begin] == '<'; }
    std::size_t behindTrail(std::size_t end) const
    {
        std::size_t const next = std::min(myText.find_first_not_of(" \t", end), myText.size());
        std::size_t const last = myText.compare(next, 4, "<!--") == 0 ? myText.find("-->", next) : std::string::npos;
        return last != std::string::npos ? last + 3 : end;
    }

    std::string myText;
    bool myIsReadable = false;
    Item myRoot;
    std::string myEncoding;           // whose bytes do not go with those of another
    std::vector<std::size_t> myLines; // where each begins
};
} // namespace

std::unique_ptr<MergeSource> MergeSource::make(std::string const& text, bool isXml)
{
    return isXml ? std::unique_ptr<MergeSource>(new XmlSource(text)) : std::make_unique<TextSource>(text);
}

std::string MergeSource::tokensOf(Stretch const& stretch) const
{
    std::string result;
    for (auto const& [token, kind] : tokens(stretch))
    {
        if (kind != Kind::Blank)
        {
            bool const isTrimmed = kind == Kind::LineComment;
            result.append(isTrimmed ? token.substr(0, token.find_last_not_of(" \t\r") + 1) : token) += '\n';
        }
    }
    return result;
}

std::size_t MergeSource::solidBegin(Stretch const& stretch) const
{
    return std::min(text().find_first_not_of(theSpaces, stretch.begin), stretch.end);
}

std::string MergeSource::indented(Stretch const& stretch, std::size_t from, std::string const& indent) const
{
    std::string out;
    for (auto const& [token, kind] : tokens(stretch))
    {
        std::size_t const line = token.rfind('\n');
        if (kind != Kind::Blank || line == std::string_view::npos)
        {
            out += token;
            continue;
        }
        std::size_t const width = token.size() - line - 1;
        out += token.substr(0, line + 1);
        out += width >= from ? indent : std::string();
        out += token.substr(line + 1 + (width >= from ? from : 0));
    }
    return out;
}
