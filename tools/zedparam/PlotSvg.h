#pragma once

#include <string>

struct Plot;

/// The plot as an SVG element. Alone it has a white paper; inside a page it takes that page's colours, whose style
/// sheet may go by the classes plot, mark and grid.
std::string plotSvg(Plot const& plot, bool isAlone);
