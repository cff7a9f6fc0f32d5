#pragma once

#include <string>

struct Plot;

enum class PlotStyle
{
    Plain,   ///< ASCII letters
    Unicode, ///< lines of dots, with letters on them
    Coloured ///< the same in the colours of a terminal
};

/// The plot in characters, a line of text for each of its rows.
std::string plotText(Plot const& plot, PlotStyle style);
