#pragma once

#include <string>

/// A file name as the user would write it, without detours: relative when it lies below the working directory, or below
/// a directory outside of it that was given by a relative path.
std::string shownPath(std::string const& file);
/// Tells of a path that the user gave; those that do not lead out of the working directory count for nothing.
void rememberGivenPath(std::string const& path);
