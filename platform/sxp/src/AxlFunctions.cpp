#include "AxlFunctions.h"

#include <limits>

#include "AxNumberText.h"
#include "AxlCellPool.h"

int AxcLength(AxlObjPtr const& list)
{
    int length = 0;
    for (AxlObj const* rest = list.get(); rest->isPair(); rest = rest->cdr())
    {
        ++length;
    }
    return length;
}

bool AxcEq(AxlObjPtr const& a, AxlObjPtr const& b)
{
    if (a.get() == b.get())
    {
        return true;
    }
    if (a->tag() != b->tag())
    {
        return false;
    }
    switch (a->tag())
    {
    case AxlObj::Tag::Nil:
    case AxlObj::Tag::Eof:
        return true;
    case AxlObj::Tag::Symbol:
        return a->symbol() == b->symbol();
    case AxlObj::Tag::String:
        return a->text() == b->text();
    case AxlObj::Tag::Number:
        return a->flonum() == b->flonum();
    case AxlObj::Tag::Pair:
        break;
    }
    return false;
}

AxlObjPtr AxcIntern(AxString const& name, AxlEnv const&)
{
    return AxcSymbol(name.string());
}

AxlObjPtr AxcCons(AxlObjPtr const& car, AxlObjPtr const& cdr)
{
    AxlObj const* first = AxlCellPool::share(car.get());
    AxlObj const* rest = AxlCellPool::share(cdr.get());
    return AxlCellPool::adopt(AxlCellPool::newPair(first, rest, {}));
}

AxlObjPtr AxcNumber(double value)
{
    return AxlCellPool::adopt(AxlCellPool::newNumber(value, false, {}));
}

AxlObjPtr AxcInteger(long long value)
{
    constexpr long long theExactLimit = 1LL << std::numeric_limits<double>::digits;
    auto number = static_cast<double>(value);
    if (value >= -theExactLimit && value <= theExactLimit)
    {
        return AxlCellPool::adopt(AxlCellPool::newNumber(number, true, {}));
    }
    std::string spelling;
    axAppendInt(spelling, value);
    return AxlCellPool::adopt(AxlCellPool::newSpelledNumber(number, true, spelling, {}));
}

AxlObjPtr AxcString(std::string_view text)
{
    return AxlCellPool::adopt(AxlCellPool::newString(text, {}));
}

AxlObjPtr AxcSymbol(std::string_view text)
{
    return AxlCellPool::adopt(AxlCellPool::newSymbol(AxSymbolString(text), {}));
}
