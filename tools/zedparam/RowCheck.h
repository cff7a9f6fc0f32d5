#pragma once

#include <string>

class Findings;

/// Reports what is odd in the probability and damage tables of a file, wherever they stand in it: probabilities outside
/// 0 to 1, rows that are not in ascending order of range, and angles of incidence that an earlier one hides.
void checkRows(std::string const& file, Findings& findings);
