#include "TextLayout.h"

#include <algorithm>
#include <unordered_map>

#include "AxlFunctions.h"
#include "AxlPrint.h"
#include "AxlSyntaxError.h"
#include "TextPath.h"

namespace
{
using Kind = TextTree::Kind;
using Token = TextTree::Token;

enum class Shape
{
    OneLine,
    ItemPerLine
};

bool hasLists(TextItem list)
{
    TextItem item = list.firstChild();
    while (item && !item.isList())
    {
        item = item.next();
    }
    return static_cast<bool>(item);
}

bool spansLines(TextTree const& tree, TextItem list)
{
    for (TextTree::Index i = list.firstTokenIndex(); i < list.lastTokenIndex(); ++i)
    {
        Token const& token = tree.tokens()[i];
        if (token.kind == Kind::Blank && tree.textOf(token).find('\n') != std::string_view::npos)
        {
            return true;
        }
    }
    return false;
}

std::string_view withoutBlanksBehind(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(" \t\r\f\v") + 1);
}

class Layout
{
public:
    Layout(TextTree const& tree, TextReading& reading) : myTree(tree), myReading(reading) {}

    std::string run()
    {
        std::vector<Token> const& tokens = myTree.tokens();
        TextItem const root = myTree.root();
        while (myNext < tokens.size())
        {
            Token const& token = tokens[myNext];
            if (token.kind == Kind::Blank)
            {
                takeBlank();
            }
            else if (token.kind == Kind::Comment)
            {
                takeComment(0);
            }
            else if (token.item == 0)
            {
                startLine(0);
                takeItem(root, myReading.read(myTree), 0, Shape::ItemPerLine);
            }
            else // not read by the library
            {
                startLine(0);
                return myOut.append(myTree.text(), token.begin);
            }
        }
        return myOut.empty() ? myOut : myOut + '\n';
    }

private:
    void takeBlank()
    {
        std::string_view const blank = myTree.textOf(myTree.tokens()[myNext++]);
        if (blank.starts_with('\xEF')) // a byte-order mark
        {
            myMark = blank;
            myOut += blank;
            return;
        }
        myLineEnds += std::ranges::count(blank, '\n');
    }

    /// A line end, unless nothing stands in front, and an empty line where one was.
    void startLine(int level)
    {
        if (myOut.size() > myMark.size())
        {
            myOut += myLineEnds > 1 && myMayBeEmptyLine ? "\n\n" : "\n";
        }
        AxReaderWriter::putIndent(myOut, level);
        myLineEnds = 0;
        myMayBeEmptyLine = true;
        myEndsLine = false;
    }

    void takeComment(int level)
    {
        if (myLineEnds > 0 || myOut.size() == myMark.size())
        {
            startLine(level);
        }
        else
        {
            myOut += "  ";
        }
        myOut += withoutBlanksBehind(myTree.textOf(myTree.tokens()[myNext++]));
        myEndsLine = true;
        myLineEnds = 0;
        myMayBeEmptyLine = true;
    }

    void takeItem(TextItem item, AxReaderWriter* rw, int level, Shape outer)
    {
        if (!item.isList())
        {
            myOut += item.source();
            ++myNext;
        }
        else
        {
            takeList(item, rw, level, outer == Shape::OneLine ? outer : shapeOf(item, rw));
        }
        myLineEnds = 0;
        myMayBeEmptyLine = true;
        myEndsLine = false;
    }

    /// How many lists each member reads; null for those that are elements, or not known.
    using Readers = std::unordered_map<AxReaderWriter const*, std::size_t>;

    static Readers readersOf(TextItem list, AxReaderWriter const* rw)
    {
        Readers readers;
        for (TextItem item = rw != nullptr ? list.firstValue() : TextItem(); item; item = item.next())
        {
            if (item.isList())
            {
                ++readers[memberOf(rw, item.head())];
            }
        }
        return readers;
    }

    void takeList(TextItem list, AxReaderWriter* rw, int level, Shape shape)
    {
        bool isLead = true;
        bool const hasVariables = rw == nullptr && list.head() == "variable-bindings";
        Readers const readers = shape == Shape::ItemPerLine ? readersOf(list, rw) : Readers();
        myOut += '(';
        ++myNext;
        myLineEnds = 0;
        myMayBeEmptyLine = false;
        for (TextItem item = list.firstChild();; item = item.next())
        {
            skipTo(item ? item.firstTokenIndex() : list.lastTokenIndex(), level + 1);
            if (!item)
            {
                break;
            }
            isLead = isLead && !item.isList();
            if (myEndsLine || (shape == Shape::ItemPerLine && !isLead && item != list.firstChild()))
            {
                startLine(level + 1);
            }
            else if (item != list.firstChild())
            {
                myOut += ' ';
            }
            bool const isAsked = rw != nullptr && shape == Shape::ItemPerLine && hasLists(item);
            auto const its = isAsked ? readers.find(memberOf(rw, item.head())) : readers.end();
            bool const isRead = its != readers.end() && its->second == 1 && item != list.firstChild();
            takeItem(item, isAsked ? myReading.part(*rw, item, isRead) : nullptr, level + 1,
                     hasVariables ? Shape::OneLine : shape);
            myMayBeEmptyLine = item != list.firstChild();
        }
        if (myEndsLine)
        {
            myMayBeEmptyLine = false;
            startLine(level);
        }
        myOut += ')';
        ++myNext;
    }

    /// Takes the blanks and comments in front of a token.
    void skipTo(TextTree::Index token, int level)
    {
        while (myNext < token)
        {
            if (myTree.tokens()[myNext].kind == Kind::Blank)
            {
                takeBlank();
            }
            else
            {
                takeComment(level);
            }
        }
    }

    Shape shapeOf(TextItem list, AxReaderWriter* rw) const
    {
        if (!hasLists(list))
        {
            return Shape::OneLine;
        }
        if (rw == nullptr)
        {
            bool const isLong = list.head() == "variable-bindings" || spansLines(myTree, list);
            return isLong ? Shape::ItemPerLine : Shape::OneLine;
        }
        std::string written;
        rw->putSelf(written, 0, false, AxFilename::nullFilename());
        TextTree const tree(std::move(written));
        bool const isLong = hasLists(tree.root()) ? spansLines(tree, tree.root()) : spansLines(myTree, list);
        return isLong ? Shape::ItemPerLine : Shape::OneLine;
    }

    TextTree const& myTree;
    TextReading& myReading;
    std::string myOut;
    std::string_view myMark;
    TextTree::Index myNext = 0;    // token that is not written yet
    std::ptrdiff_t myLineEnds = 0; // since the token written last
    bool myMayBeEmptyLine = false; // not at the beginning of a list
    bool myEndsLine = false;       // a comment stands at the end
};

std::string cells(std::string const& text)
{
    AxlInputStream stream(text);
    std::string out;
    axAppendCell(out, AxcRead(stream).get());
    return out;
}
} // namespace

std::string laidOut(TextTree const& tree, TextReading& reading)
{
    std::string out = Layout(tree, reading).run();
    // A word that would be taken for a byte-order mark now that it stands first.
    constexpr std::string_view mark = TextTree::theByteOrderMark;
    if (!tree.text().starts_with(mark) && (out.starts_with(mark) || AxlSyntaxError::isUtf16(out)))
    {
        out.insert(0, 1, ' ');
    }
    return out;
}

bool haveSameContent(TextTree const& a, TextTree const& b)
{
    auto const isSubstance = [](Token const& token) { return token.kind != Kind::Blank; };
    auto const skip = [&](TextTree const& tree, auto token)
    { return std::find_if(token, tree.tokens().end(), isSubstance); };
    auto left = skip(a, a.tokens().begin());
    auto right = skip(b, b.tokens().begin());
    while (left != a.tokens().end() && right != b.tokens().end())
    {
        if (left->kind != right->kind || withoutBlanksBehind(a.textOf(*left)) != withoutBlanksBehind(b.textOf(*right)))
        {
            return false;
        }
        left = skip(a, left + 1);
        right = skip(b, right + 1);
    }
    return left == a.tokens().end() && right == b.tokens().end() && cells(a.text()) == cells(b.text());
}
