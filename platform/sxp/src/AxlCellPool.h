#pragma once

#include <string_view>

#include "AxNumberText.h"
#include "AxlObj.h"

/// Makes and frees cells. Free cells form a list through their payload; memory goes back to the pool and stays there.
/// The shared nil cell is not counted inside pairs, since nearly every list ends in it.
class AxlCellPool
{
public:
    struct Place
    {
        std::uint32_t line;
        std::uint32_t column;
    };

    /// Every new cell has the count 1, which belongs to the caller.
    static AxlObj* newNil(Place place) { return take(AxlObj::Tag::Nil, place); }

    /// Takes over the caller's counts of `car` and `cdr`.
    static AxlObj* newPair(AxlObj const* car, AxlObj const* cdr, Place place)
    {
        AxlObj* cell = take(AxlObj::Tag::Pair, place);
        cell->myPayload.pair = {car, cdr};
        return cell;
    }

    static AxlObj* newSymbol(AxSymbolString symbol, Place place)
    {
        AxlObj* cell = take(AxlObj::Tag::Symbol, place);
        std::string_view text = symbol.view();
        cell->myFlags = text.size() > 1 && text.front() == '$' ? AxlObj::theReference : std::uint8_t(0);
        cell->myPayload.symbol = symbol.id();
        return cell;
    }

    static AxlObj* newNumber(double value, bool integer, Place place)
    {
        AxlObj* cell = take(AxlObj::Tag::Number, place);
        cell->myFlags = integer ? AxlObj::theInteger : std::uint8_t(0);
        cell->myPayload.number.value = value;
        return cell;
    }

    /// A number with a spelling of its own.
    static AxlObj* newSpelledNumber(double value, bool integer, std::string_view spelling, Place place);

    static AxlObj* newString(std::string_view text, Place place)
    {
        AxlObj* cell = take(AxlObj::Tag::String, place);
        if (text.size() <= sizeof(cell->myPayload.inlined))
        {
            cell->myLength = static_cast<std::uint8_t>(text.size());
            text.copy(cell->myPayload.inlined, text.size());
        }
        else
        {
            keepOnHeap(cell, text);
        }
        if (text.find("$(") != std::string_view::npos)
        {
            cell->myFlags = AxlObj::theEmbeddedReference;
        }
        return cell;
    }

    /// Makes the last pair of a list that is being built go on with `rest`, whose count it takes over.
    static void setCdr(AxlObj* pair, AxlObj const* rest) { pair->myPayload.pair.cdr = rest; }

    /// A handle that takes over the caller's count.
    static AxlObjPtr adopt(AxlObj const* cell)
    {
        AxlObjPtr handle(cell);
        --cell->myCount;
        return handle;
    }

    /// `cell` with one more count for a pair to hold.
    static AxlObj const* share(AxlObj const* cell)
    {
        if (cell != &AxlObj::theNil)
        {
            ++cell->myCount;
        }
        return cell;
    }

    /// Gives a count back, as a pair would.
    static void drop(AxlObj const* cell)
    {
        if (dropped(cell))
        {
            destroy(cell);
        }
    }

    /// How a number was written.
    static void appendNumber(std::string& out, AxlObj const* cell);
    /// The spelling that a number of this value gets.
    static void appendUsual(std::string& out, double value, bool integer);

    /// Frees a cell whose count is 0 and all that it alone held, in constant stack space.
    static void destroy(AxlObj const* cell);

private:
    static bool dropped(AxlObj const* cell) { return cell != &AxlObj::theNil && --cell->myCount == 0; }

    static AxlObj* take(AxlObj::Tag tag, Place place)
    {
        if (theFree == nullptr)
        {
            grow();
        }
        AxlObj* cell = theFree;
        theFree = nextOf(cell);
        cell->myCount = 1;
        cell->myTag = tag;
        cell->myFlags = 0;
        cell->myLength = 0;
        cell->myLine = place.line;
        cell->myColumn = place.column;
        return cell;
    }

    static void give(AxlObj* cell)
    {
        cell->myPayload.pair.cdr = theFree;
        theFree = cell;
    }

    static void giveAtom(AxlObj* cell)
    {
        if (cell->myLength == AxlObj::theOnHeap)
        {
            freeHeap(cell);
        }
        give(cell);
    }

    static AxlObj* nextOf(AxlObj* cell) { return const_cast<AxlObj*>(cell->myPayload.pair.cdr); }

    static void grow();
    static void keepOnHeap(AxlObj* cell, std::string_view text);
    static void freeHeap(AxlObj* cell);

    static inline AxlObj* theFree = nullptr;
    /// The part of the newest block that was never used; a block goes on the free list a page at a time, so that
    /// memory is touched only when it is needed.
    static inline AxlObj* theUnused = nullptr;
    static inline AxlObj* theUnusedEnd = nullptr;
    /// Keeps every block reachable.
    static inline AxlObj* theBlocks = nullptr;
};
