#pragma once

#include <string>

/// What the dot command draws of a graph: an SVG element, in front of it nothing. False, and `svg` as it was, when the
/// command is not there or fails.
bool drawDot(std::string const& graph, std::string& svg);
