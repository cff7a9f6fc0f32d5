#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

#include "AxExport.h"
#include "AxString.h"
#include "AxSymbolString.h"

/// One cell of a symbolic expression: an atom, or a pair whose `car` is an element and whose `cdr` is the rest of the
/// list. Cells come from a pool, are never changed once built and live as long as an AxlObjPtr, or a pair that has one,
/// holds them. The counts are not atomic: cells stay on one thread.
class ZEDOBJPARAM_API AxlObj
{
public:
    enum class Tag : std::uint8_t
    {
        Nil,
        Eof,
        Symbol,
        String,
        Number,
        Pair
    };

    AxlObj(AxlObj const&) = delete;
    AxlObj& operator=(AxlObj const&) = delete;

    Tag tag() const { return myTag; }
    /// True for the end of a list and for an empty list `()`.
    bool nil() const { return myTag == Tag::Nil; }
    bool isEof() const { return myTag == Tag::Eof; }
    bool isSymbol() const { return myTag == Tag::Symbol; }
    bool isString() const { return myTag == Tag::String; }
    bool isNumber() const { return myTag == Tag::Number; }
    bool isPair() const { return myTag == Tag::Pair; }

    /// Text of a symbol or string, valid as long as the cell; "" for all others.
    std::string_view text() const
    {
        if (myTag == Tag::String)
        {
            return myLength == theOnHeap ? std::string_view(myPayload.heap.bytes, myPayload.heap.size)
                                         : std::string_view(myPayload.inlined, myLength);
        }
        return myTag == Tag::Symbol ? symbolOf().view() : std::string_view();
    }

    /// Text of a symbol or string, a number as it was written, "" for all others.
    AxString pname() const;
    AxString string() const { return pname(); }

    /// The interned text of a symbol or string; the empty symbol for all others.
    AxSymbolString symbol() const { return myTag == Tag::Symbol ? symbolOf() : AxSymbolString(text()); }

    /// Value of a number, 0.0 for all others.
    double flonum() const { return myTag == Tag::Number ? myPayload.number.value : 0.0; }
    /// Whether a number was spelled without point and exponent.
    bool isInteger() const { return (myFlags & theInteger) != 0; }

    /// A symbol that names a variable: "$" in front of at least one more byte.
    bool isReference() const { return (myFlags & theReference) != 0; }
    /// A string that holds "$(".
    bool hasEmbeddedReference() const { return (myFlags & theEmbeddedReference) != 0; }

    /// Place of the first byte of the cell's text, a list's opening parenthesis; both count from 1, the column in
    /// bytes. The rest of a list stands where its first element does. 0 for what was not read.
    std::uint32_t line() const { return myLine; }
    std::uint32_t column() const { return myColumn; }

    /// Element and rest, without touching any count: valid as long as this cell. Never null; a nil cell when this is
    /// no pair.
    AxlObj const* car() const { return myTag == Tag::Pair ? myPayload.pair.car : &theNil; }
    AxlObj const* cdr() const { return myTag == Tag::Pair ? myPayload.pair.cdr : &theNil; }

    /// The shared nil and end-of-file cells.
    static AxlObj const* nilCell() { return &theNil; }
    static AxlObj const* eofCell() { return &theEof; }

private:
    friend class AxlObjPtr;
    friend class AxlCellPool;

    struct Pair
    {
        AxlObj const* car;
        AxlObj const* cdr;
    };
    /// The spelling is kept only when it is not the one the writer would choose.
    struct Number
    {
        double value;
        union
        {
            char inlined[8];
            char* heap;
        } spelling;
    };
    struct HeapText
    {
        char* bytes;
        std::uint64_t size;
    };
    union Payload
    {
        Pair pair;
        Number number;
        HeapText heap;
        void const* symbol;
        char inlined[16];
    };

    static constexpr std::uint8_t theInteger = 1;
    static constexpr std::uint8_t theReference = 2;
    static constexpr std::uint8_t theEmbeddedReference = 4;
    static constexpr std::uint8_t theOnHeap = 255;

    constexpr explicit AxlObj(Tag tag) : myTag(tag), myPayload{{nullptr, nullptr}} {}

    AxSymbolString symbolOf() const { return AxSymbolString::fromId(myPayload.symbol); }
    static void destroy(AxlObj const* cell);

    static AxlObj theNil;
    static AxlObj theEof;

    mutable std::uint32_t myCount = 1;
    Tag myTag;
    std::uint8_t myFlags = 0;
    /// Bytes held in the cell itself, or `theOnHeap`. For a number: of its spelling, 0 when that is the usual one.
    std::uint8_t myLength = 0;
    std::uint32_t myLine = 0;
    std::uint32_t myColumn = 0;
    Payload myPayload;
};

static_assert(sizeof(AxlObj) == 32, "two cells to a cache line");

/// Shared handle of a cell. An empty handle is the nil cell, so that `->` is always allowed.
class ZEDOBJPARAM_API AxlObjPtr
{
public:
    AxlObjPtr() : AxlObjPtr(AxlObj::nilCell()) {}
    /// Shares a cell that something else holds; null stands for nil.
    explicit AxlObjPtr(AxlObj const* cell) : myCell(cell != nullptr ? cell : AxlObj::nilCell()) { ++myCell->myCount; }
    AxlObjPtr(AxlObjPtr const& other) : myCell(other.myCell) { ++myCell->myCount; }
    AxlObjPtr(AxlObjPtr&& other) noexcept : AxlObjPtr() { swap(other); }
    ~AxlObjPtr() { release(); }

    AxlObjPtr& operator=(AxlObjPtr const& other)
    {
        AxlObjPtr(other).swap(*this);
        return *this;
    }
    AxlObjPtr& operator=(AxlObjPtr&& other) noexcept
    {
        swap(other);
        return *this;
    }

    void swap(AxlObjPtr& other) noexcept { std::swap(myCell, other.myCell); }

    bool nil() const { return myCell->nil(); }
    /// Never null.
    AxlObj const* get() const { return myCell; }
    AxlObj const* operator->() const { return myCell; }
    AxlObj const& operator*() const { return *myCell; }

    /// As AxcEq: the same cell, or equal atoms of one kind.
    friend ZEDOBJPARAM_API bool operator==(AxlObjPtr const& a, AxlObjPtr const& b);

private:
    friend class AxlCellPool;

    void release()
    {
        if (--myCell->myCount == 0)
        {
            AxlObj::destroy(myCell);
        }
    }

    AxlObj const* myCell;
};
