#pragma once

#include "AxlFunctions.h"
#include "AxlPrint.h"

#include <string>
#include <string_view>

/// The first expression of a text.
inline AxlObjPtr cellsOf(std::string_view text)
{
    AxlInputStream stream(text);
    return AxcRead(stream);
}

inline std::string printed(AxlObjPtr const& cell)
{
    std::string text;
    axAppendCell(text, cell.get());
    return text;
}
