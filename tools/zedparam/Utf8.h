#pragma once

#include <cstddef>
#include <string_view>

/// Length of the well-formed UTF-8 sequence at the beginning of `text`, 0 when there is none.
std::size_t utf8Length(std::string_view text);
