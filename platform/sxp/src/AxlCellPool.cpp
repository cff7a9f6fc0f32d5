#include "AxlCellPool.h"

#include <new>

namespace
{
constexpr std::size_t theBlockCells = 4096;
constexpr std::size_t thePageCells = 4096 / sizeof(AxlObj);
} // namespace

void AxlCellPool::grow()
{
    if (theUnused == theUnusedEnd)
    {
        auto* block = static_cast<AxlObj*>(::operator new(theBlockCells * sizeof(AxlObj)));
        new (block) AxlObj(AxlObj::Tag::Nil);
        block->myPayload.pair.cdr = theBlocks;
        theBlocks = block;
        theUnused = block + 1;
        theUnusedEnd = block + theBlockCells;
    }
    std::size_t left = static_cast<std::size_t>(theUnusedEnd - theUnused);
    AxlObj* end = theUnused + (left < thePageCells ? left : thePageCells);
    for (AxlObj* cell = end; cell != theUnused;)
    {
        --cell;
        new (cell) AxlObj(AxlObj::Tag::Nil);
        give(cell);
    }
    theUnused = end;
}

void AxlCellPool::keepOnHeap(AxlObj* cell, std::string_view text)
{
    char* bytes = nullptr;
    try
    {
        bytes = new char[text.size()];
    }
    catch (...)
    {
        give(cell);
        throw;
    }
    std::memcpy(bytes, text.data(), text.size());
    cell->myPayload.heap = {bytes, text.size()};
    cell->myLength = AxlObj::theOnHeap;
}

void AxlCellPool::freeHeap(AxlObj* cell)
{
    delete[](cell->myTag == AxlObj::Tag::Number ? cell->myPayload.number.spelling.heap : cell->myPayload.heap.bytes);
}

AxlObj* AxlCellPool::newSpelledNumber(double value, bool integer, std::string_view spelling, Place place)
{
    AxlObj* cell = newNumber(value, integer, place);
    auto& kept = cell->myPayload.number.spelling;
    if (spelling.size() <= sizeof(kept.inlined))
    {
        std::memcpy(kept.inlined, spelling.data(), spelling.size());
        cell->myLength = static_cast<std::uint8_t>(spelling.size());
        return cell;
    }
    // The count of the bytes has no room in the cell: a zero byte, which no number holds, ends them.
    keepOnHeap(cell, std::string(spelling) + '\0');
    kept.heap = cell->myPayload.heap.bytes;
    cell->myPayload.number.value = value;
    return cell;
}

void AxlCellPool::appendNumber(std::string& out, AxlObj const* cell)
{
    auto const& number = cell->myPayload.number;
    switch (cell->myLength)
    {
    case 0:
        appendUsual(out, number.value, cell->isInteger());
        break;
    case AxlObj::theOnHeap:
        out += number.spelling.heap;
        break;
    default:
        out.append(number.spelling.inlined, cell->myLength);
    }
}

void AxlCellPool::appendUsual(std::string& out, double value, bool integer)
{
    constexpr double theWholeLimit = 9007199254740992.0;
    if (integer && value >= -theWholeLimit && value <= theWholeLimit)
    {
        axAppendInt(out, static_cast<long long>(value));
    }
    else
    {
        axAppendReal(out, value);
    }
}

void AxlCellPool::destroy(AxlObj const* start)
{
    auto* cell = const_cast<AxlObj*>(start);
    // Pairs whose rest is still to be freed, linked through the `car` that they no longer need.
    AxlObj* waiting = nullptr;
    for (;;)
    {
        AxlObj const* rest = &AxlObj::theNil;
        if (cell->isPair())
        {
            auto* car = const_cast<AxlObj*>(cell->myPayload.pair.car);
            if (dropped(car))
            {
                if (car->isPair())
                {
                    cell->myPayload.pair.car = waiting;
                    waiting = cell;
                    cell = car;
                    continue;
                }
                giveAtom(car);
            }
            rest = cell->myPayload.pair.cdr;
            give(cell);
        }
        else
        {
            giveAtom(cell);
        }
        while (!dropped(rest))
        {
            if (waiting == nullptr)
            {
                return;
            }
            AxlObj* pair = waiting;
            waiting = const_cast<AxlObj*>(pair->myPayload.pair.car);
            rest = pair->myPayload.pair.cdr;
            give(pair);
        }
        cell = const_cast<AxlObj*>(rest);
    }
}
