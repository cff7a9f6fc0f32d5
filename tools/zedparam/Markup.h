#pragma once

#include <string>
#include <string_view>

/// Text as it stands between the tags, or in a quoted attribute, of HTML or XML. What neither may hold (control
/// characters, bytes that are no UTF-8) comes out as U+FFFD.
std::string markup(std::string_view text);

/// A number for a drawing, with at most two decimals.
std::string drawn(double value);
