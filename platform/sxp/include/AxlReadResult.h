#pragma once

#include <cstdint>

#include "AxlObj.h"

/// One expression and, when its text ended too early, where the list that was left open begins.
struct AxlReadResult
{
    AxlObjPtr expr{};
    bool unclosed = false;
    /// Opening parenthesis of the innermost open list; 0 when all were closed.
    std::uint32_t line = 0;
    std::uint32_t column = 0;
};
