#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "AxExport.h"

/// Appends the shortest text that reads back to the same number: fixed for 0 and from 1e-5 up to but not including
/// 1e15, else scientific, always with a point or an exponent ("5000.0", "-0.0", "9.4e+20"); "inf", "-inf", "nan".
ZEDOBJPARAM_API void axAppendReal(std::string& out, double value);

/// Appends decimal digits, with "-" in front of a negative number.
ZEDOBJPARAM_API void axAppendInt(std::string& out, long long value);

/// Characters that `axWriteReal` and `axWriteInt` need at most.
inline constexpr std::size_t axLongestNumber = 32;

/// Write what the two above append, to a place with room for `axLongestNumber` characters; they answer its end.
ZEDOBJPARAM_API char* axWriteReal(char* to, double value);
ZEDOBJPARAM_API char* axWriteInt(char* to, long long value);

/// Whether the whole token is spelled `[+-]digits[.digits][e[+-]digits]` with a digit before or after the point.
ZEDOBJPARAM_API bool axIsNumber(std::string_view token);

/// Reads a token of that spelling to the nearest double, in every locale alike. False, and `value` untouched, for any
/// other token and for a number beyond the range of a double.
ZEDOBJPARAM_API bool axParseReal(std::string_view token, double& value);

/// Reads `[+-]digits`; false, and `value` untouched, for any other token and when out of range.
ZEDOBJPARAM_API bool axParseInt(std::string_view token, long long& value);
