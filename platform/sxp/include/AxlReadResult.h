#pragma once

#include <cstdint>

#include "AxExport.h"
#include "AxlObj.h"
#include "AxlSyntaxError.h"

/// One expression and, when its text ended too early, where the list that was left open begins.
struct ZEDOBJPARAM_API AxlReadResult
{
    AxlObjPtr expr{};
    bool unclosed = false;
    /// Opening parenthesis of the innermost open list; 0 when all were closed.
    std::uint32_t line = 0;
    std::uint32_t column = 0;
    /// Opening quote of the string that the text ends in, which is no part of the expression; 0 when there is none.
    std::uint32_t stringLine = 0;
    std::uint32_t stringColumn = 0;

    /// What is missing, when something is: the end of that string, else that of the list.
    AxlSyntaxError fault() const;
    /// Reports what was left open, if anything, and settles what follows from it: nothing more is told of the open
    /// lists themselves and of the atoms that the innermost one ends in. A `statedLine` is what the warning stream
    /// gets.
    void reportUnclosed(std::string const& statedLine = {}) const;
    /// The latter alone.
    void settleCutOff() const;
};
