#pragma once

#include <string>

/// A file name as the user would write it: relative when it lies below the working directory, without detours.
std::string shownPath(std::string const& file);
