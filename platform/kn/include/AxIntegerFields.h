#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "AxExport.h"

/// Reads integers separated by blanks or by one ":" with or without blanks around it. Fills `fields` from the front
/// and answers how many numbers stand in the text, which may be more than fit; -1 when the text is anything else or
/// a number does not fit into 32 bits.
ZEDOBJPARAM_API int axReadIntegerFields(std::string_view text, std::span<std::int32_t> fields);

/// The integers in decimal, joined by `separator`.
ZEDOBJPARAM_API std::string axJoinIntegerFields(std::span<std::int32_t const> fields, std::string_view separator);
