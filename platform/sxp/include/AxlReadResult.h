#pragma once

#include <cstdint>

#include "AxExport.h"
#include "AxlObj.h"

/// One expression and, when its text ended too early, where the list that was left open begins.
struct ZEDOBJPARAM_API AxlReadResult
{
    AxlObjPtr expr{};
    bool unclosed = false;
    /// Opening parenthesis of the innermost open list; 0 when all were closed.
    std::uint32_t line = 0;
    std::uint32_t column = 0;

    /// Reports the list that was left open, if any, and settles what follows from it: nothing more is told of the open
    /// lists themselves and of the atoms that the innermost one ends in.
    void reportUnclosed() const;
    /// The latter alone.
    void settleCutOff() const;
};
