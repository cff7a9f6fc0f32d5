#pragma once

#include <string>
#include <string_view>

#include "AxExport.h"
#include "AxlObj.h"

/// Appends the cell on one line, so that it reads back equal: numbers as they were written, strings quoted, a symbol
/// quoted when it would not be read as one. A tail that is no list is written as a last element.
ZEDOBJPARAM_API void axAppendCell(std::string& out, AxlObj const* cell);

/// Appends the text in quotes, with `"` as `\"` and `\` as `\\`.
ZEDOBJPARAM_API void axAppendQuoted(std::string& out, std::string_view text);

/// Appends a name: bare when it is a bare word, else in quotes.
ZEDOBJPARAM_API void axAppendName(std::string& out, AxSymbolString name);
