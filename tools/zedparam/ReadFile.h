#pragma once

#include <string>

/// All of a file; false, after a line on the standard error stream, when it cannot be read.
bool readFile(std::string const& file, std::string& text);
