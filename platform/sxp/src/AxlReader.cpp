#include "AxlFunctions.h"

#include <array>
#include <cstring>

#include "AxDiagnostic.h"
#include "AxLimits.h"
#include "AxlCellPool.h"
#include "AxlScanner.h"
#include "AxlSyntaxError.h"

namespace
{
using Place = AxlCellPool::Place;
using Token = AxlScanner::Token;

/// Builds one expression from tokens. Open lists wait on a stack of their own, so depth costs no call.
class CellReader
{
public:
    explicit CellReader(AxlInputStream& stream) : myScanner(stream) {}
    CellReader(CellReader const&) = delete;
    CellReader& operator=(CellReader const&) = delete;

    ~CellReader()
    {
        while (myDepth != 0)
        {
            AxlCellPool::drop(myLists[--myDepth].first);
        }
    }

    AxlReadResult read(bool closeOpenLists)
    {
        try
        {
            return readExpression(closeOpenLists);
        }
        catch (AxlSyntaxError const& error)
        {
            if (!closeOpenLists || myDepth == 0 || std::strcmp(error.code(), "unclosed-string") != 0)
            {
                throw;
            }
            AxlReadResult result = end(true);
            result.stringLine = error.line();
            result.stringColumn = error.column();
            return result;
        }
    }

private:
    AxlReadResult readExpression(bool closeOpenLists)
    {
        for (;;)
        {
            AxlObj const* cell = nullptr;
            switch (Token token = myScanner.next())
            {
            case Token::Open:
                open();
                continue;
            case Token::Close:
                cell = close();
                break;
            case Token::End:
                return end(closeOpenLists);
            default:
                cell = atom(token);
            }
            if (myDepth == 0)
            {
                return {AxlCellPool::adopt(cell)};
            }
            append(cell);
        }
    }

    /// A list whose closing parenthesis has not been seen.
    struct OpenList
    {
        AxlObj const* first;
        AxlObj* last;
        Place place;
    };

    [[noreturn]] static void fail(char const* code, std::string text, Place place)
    {
        throw AxlSyntaxError(code, std::move(text), place.line, place.column);
    }

    AxlObj const* atom(Token token)
    {
        Place place = myScanner.place();
        switch (token)
        {
        case Token::String:
            return AxlCellPool::newString(myScanner.text(), place);
        case Token::Number:
            return myScanner.isUsual() ? AxlCellPool::newNumber(myScanner.number(), myScanner.isInteger(), place)
                                       : AxlCellPool::newSpelledNumber(myScanner.number(), myScanner.isInteger(),
                                                                       myScanner.text(), place);
        default:
            return AxlCellPool::newSymbol(AxSymbolString(myScanner.text()), place);
        }
    }

    void open()
    {
        if (myDepth == myLists.size())
        {
            fail("nesting-limit", "lists are nested deeper than " + std::to_string(axLimits.cellNesting),
                 myScanner.place());
        }
        myLists[myDepth++] = {AxlObj::nilCell(), nullptr, myScanner.place()};
    }

    AxlObj const* close()
    {
        if (myDepth == 0)
        {
            fail("stray-parenthesis", "expected \"(\" or the end of the text, found \")\", which closes no list",
                 myScanner.place());
        }
        OpenList const& list = myLists[--myDepth];
        return list.last != nullptr ? list.first : AxlCellPool::newNil(list.place);
    }

    void append(AxlObj const* cell)
    {
        OpenList& list = myLists[myDepth - 1];
        if (list.last == nullptr)
        {
            list.last = AxlCellPool::newPair(cell, AxlObj::nilCell(), list.place);
            list.first = list.last;
            return;
        }
        AxlObj* pair = AxlCellPool::newPair(cell, AxlObj::nilCell(), {cell->line(), cell->column()});
        AxlCellPool::setCdr(list.last, pair);
        list.last = pair;
    }

    AxlReadResult end(bool closeOpenLists)
    {
        if (myDepth == 0)
        {
            return {axcEof()};
        }
        Place innermost = myLists[myDepth - 1].place;
        if (!closeOpenLists)
        {
            throw AxlSyntaxError::unclosedList(innermost.line, innermost.column);
        }
        AxlObj const* cell = close();
        while (myDepth != 0)
        {
            append(cell);
            cell = close();
        }
        return {AxlCellPool::adopt(cell), true, innermost.line, innermost.column};
    }

    AxlScanner myScanner;
    std::size_t myDepth = 0;
    // Left as it comes: only what lies below the depth is ever looked at.
    std::array<OpenList, axLimits.cellNesting> myLists;
};
} // namespace

AxlObjPtr AxcRead(AxlInputStream& stream, AxlEnv const&)
{
    return CellReader(stream).read(false).expr;
}

AxlReadResult AxcRead(AxlInputStream& stream, AxlEnv const&, AxlReadOptions const& options)
{
    return CellReader(stream).read(options.closeOpenLists);
}

bool axTextFollows(AxlInputStream& stream, std::uint32_t& line, std::uint32_t& column)
{
    AxlScanner scanner(stream);
    bool follows = scanner.skipBlanks();
    if (follows)
    {
        line = scanner.place().line;
        column = scanner.place().column;
    }
    return follows;
}

AxlSyntaxError AxlReadResult::fault() const
{
    return stringLine != 0 ? AxlSyntaxError::unclosedString(stringLine, stringColumn)
                           : AxlSyntaxError::unclosedList(line, column);
}

void AxlReadResult::settleCutOff() const
{
    AxlObj const* list = unclosed ? expr.get() : AxlObj::nilCell();
    while (list->line() != 0)
    {
        AxSourceScope::settle(list->line(), list->column());
        bool const isInnermost = list->line() == line && list->column() == column;
        AxlObj const* last = AxlObj::nilCell();
        for (; list->isPair(); list = list->cdr())
        {
            last = list->car();
            if (isInnermost && !last->isPair() && !last->nil())
            {
                AxSourceScope::settle(last->line(), last->column());
            }
        }
        list = isInnermost ? AxlObj::nilCell() : last;
    }
}

void AxlReadResult::reportUnclosed(std::string const& statedLine) const
{
    if (unclosed)
    {
        fault().report(statedLine);
        settleCutOff();
    }
}
