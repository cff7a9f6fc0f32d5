#include "AxlPrint.h"

#include <vector>

#include "AxNumberText.h"
#include "AxlCellPool.h"

namespace
{
/// Whether the reader makes a symbol of these bytes.
bool isSymbolText(std::string_view text)
{
    for (char character : text)
    {
        auto byte = static_cast<unsigned char>(character);
        if (byte <= ' ' || byte == 0x7F || byte == '(' || byte == ')' || byte == '"' || byte == ';')
        {
            return false;
        }
    }
    double ignored = 0.0;
    return !text.empty() && !(axIsNumber(text) && axParseReal(text, ignored));
}

void appendSymbol(std::string& out, AxSymbolString symbol)
{
    if (symbol.isBareWord() || isSymbolText(symbol.view()))
    {
        out += symbol.view();
    }
    else
    {
        axAppendQuoted(out, symbol.view());
    }
}

void appendAtom(std::string& out, AxlObj const* cell)
{
    switch (cell->tag())
    {
    case AxlObj::Tag::Nil:
        out += "()";
        break;
    case AxlObj::Tag::Symbol:
        appendSymbol(out, cell->symbol());
        break;
    case AxlObj::Tag::String:
        axAppendQuoted(out, cell->text());
        break;
    case AxlObj::Tag::Number:
        AxlCellPool::appendNumber(out, cell);
        break;
    case AxlObj::Tag::Eof:
    case AxlObj::Tag::Pair:
        break;
    }
}
} // namespace

void axAppendCell(std::string& out, AxlObj const* cell)
{
    if (cell == nullptr)
    {
        return;
    }
    // What is still to be written of the lists around; depth must not cost calls, cells built in code know no limit.
    std::vector<AxlObj const*> rests;
    for (;;)
    {
        if (cell->isPair())
        {
            out += '(';
            rests.push_back(cell->cdr());
            cell = cell->car();
            continue;
        }
        appendAtom(out, cell);
        while (!rests.empty() && rests.back() == AxlObj::nilCell())
        {
            out += ')';
            rests.pop_back();
        }
        if (rests.empty())
        {
            return;
        }
        out += ' ';
        AxlObj const* rest = rests.back();
        rests.back() = rest->cdr();
        cell = rest->isPair() ? rest->car() : rest;
    }
}

void axAppendQuoted(std::string& out, std::string_view text)
{
    out += '"';
    if (text.find_first_of("\"\\") == std::string_view::npos)
    {
        out += text;
    }
    else
    {
        for (char byte : text)
        {
            if (byte == '"' || byte == '\\')
            {
                out += '\\';
            }
            out += byte;
        }
    }
    out += '"';
}

void axAppendName(std::string& out, AxSymbolString name)
{
    if (name.isBareWord())
    {
        out += name.view();
    }
    else
    {
        axAppendQuoted(out, name.view());
    }
}
