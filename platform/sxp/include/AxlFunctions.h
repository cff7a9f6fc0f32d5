#pragma once

#include <cstdint>
#include <string_view>

#include "AxExport.h"
#include "AxString.h"
#include "AxlEnv.h"
#include "AxlInputStream.h"
#include "AxlObj.h"
#include "AxlReadOptions.h"
#include "AxlReadResult.h"

/// First element; nil for anything that is no pair.
inline AxlObjPtr AxcCar(AxlObjPtr const& list)
{
    return AxlObjPtr(list->car());
}

/// All but the first element; nil for anything that is no pair.
inline AxlObjPtr AxcCdr(AxlObjPtr const& list)
{
    return AxlObjPtr(list->cdr());
}

/// Second element, or nil.
inline AxlObjPtr AxcCadr(AxlObjPtr const& list)
{
    return AxlObjPtr(list->cdr()->car());
}

/// Third element, or nil.
inline AxlObjPtr AxcCaddr(AxlObjPtr const& list)
{
    return AxlObjPtr(list->cdr()->cdr()->car());
}

/// Number of elements; 0 for anything that is no pair.
ZEDOBJPARAM_API int AxcLength(AxlObjPtr const& list);

/// The same cell, or equal atoms of one kind. Numbers are compared by value, lists by identity.
ZEDOBJPARAM_API bool AxcEq(AxlObjPtr const& a, AxlObjPtr const& b);

/// The symbol of this text.
ZEDOBJPARAM_API AxlObjPtr AxcIntern(AxString const& name, AxlEnv const& env = {});

/// Reads the next expression; the end-of-file cell when only blanks and comments are left. The stream then stands right
/// behind the expression. Throws AxlSyntaxError, with the stream at the fault.
ZEDOBJPARAM_API AxlObjPtr AxcRead(AxlInputStream& stream, AxlEnv const& env = {});
ZEDOBJPARAM_API AxlReadResult AxcRead(AxlInputStream& stream, AxlEnv const& env, AxlReadOptions const& options);

/// Whether anything but blanks and comments is left; if so, the stream stands in front of it and its place is told.
ZEDOBJPARAM_API bool axTextFollows(AxlInputStream& stream, std::uint32_t& line, std::uint32_t& column);

/// Cells made in code. They have no place.
ZEDOBJPARAM_API AxlObjPtr AxcCons(AxlObjPtr const& car, AxlObjPtr const& cdr);
ZEDOBJPARAM_API AxlObjPtr AxcNumber(double value);
ZEDOBJPARAM_API AxlObjPtr AxcInteger(long long value);
ZEDOBJPARAM_API AxlObjPtr AxcString(std::string_view text);
ZEDOBJPARAM_API AxlObjPtr AxcSymbol(std::string_view text);

inline AxlObjPtr axcNil()
{
    return AxlObjPtr(AxlObj::nilCell());
}

/// What AxcRead answers at the end of the text.
inline AxlObjPtr axcEof()
{
    return AxlObjPtr(AxlObj::eofCell());
}
