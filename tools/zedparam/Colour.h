#pragma once

#include <string>

enum class Colour
{
    Red = 31,
    Green = 32,
    Bold = 1
};

/// Whether the standard output is a terminal and NO_COLOR does not forbid colours there.
bool mayColour();

/// The text in a colour where there may be any, else as it is.
std::string coloured(std::string const& text, Colour colour);
