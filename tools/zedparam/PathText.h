#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// A step of a path of keywords as users write it: reload-time, connect[2], real-resource["fuel"], or ["left/right"]
/// for a name that would not be taken for one step. Inside the quotes a backslash stands in front of a quote and of
/// itself.
struct KeywordStep
{
    std::string name{};
    std::string identity{};   ///< how the element that is meant calls itself, of real-resource["fuel"]
    std::size_t position = 0; ///< of connect[2], from 1; 0 where none is given
    bool isQuoted = false;
    std::size_t begin = 0; ///< in the path
};

/// False for what is no path.
bool readPath(std::string_view path, std::vector<KeywordStep>& steps);

/// The first such byte that stands in no quotes: the end of a step, or of the path in PATH=VALUE; npos when there is
/// none.
std::size_t findOutsideQuotes(std::string_view path, char byte, std::size_t from = 0);

/// Behind the `["..."]` that stands at a byte of the text; that byte when none does.
std::size_t behindQuoted(std::string_view text, std::size_t at);

/// The name in the form in which it is one step.
std::string stepOf(std::string_view name);
/// name["identity"]
std::string stepOf(std::string_view name, std::string_view identity);
