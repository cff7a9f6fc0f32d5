#pragma once

#include <string>
#include <string_view>

/// Replaces a file as a whole; false, after a line, when that fails and the file is as it was.
bool writeFile(std::string const& file, std::string_view text);
