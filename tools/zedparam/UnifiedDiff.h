#pragma once

#include <string>

/// What differs between two texts of a file, line by line with three lines around; empty when nothing does. In linear
/// time: lines are taken for the same that are equal and come behind as many bytes that are not blank, which is exact
/// for texts that differ in their layout alone.
std::string unifiedDiff(std::string const& file, std::string const& before, std::string const& after);
