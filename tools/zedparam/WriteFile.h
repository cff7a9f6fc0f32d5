#pragma once

#include <span>
#include <string>
#include <string_view>

/// Replaces a file as a whole; false, after a line, when that fails and the file is as it was.
bool writeFile(std::string const& file, std::string_view text);

/// The same for what was made of other files; false, too, when the file is one of these, which stays.
bool writeMade(std::string const& file, std::string_view text, std::span<std::string const> sources);
