#pragma once

#include <string>

/// All of a file; false, after a line on the standard error stream, when it cannot be read.
bool readFile(std::string const& file, std::string& text);

/// All of a file that the library has read before. False, and a finding is reported, when that cannot be done again.
bool readAgain(std::string const& file, std::string& text);
