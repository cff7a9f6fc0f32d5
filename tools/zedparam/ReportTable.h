#pragma once

#include <string>

/// What a report tells of a table file: its curves, its rows and its text; as HTML.
std::string reportTable(std::string const& file);
