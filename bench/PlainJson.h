#pragma once

#include "PlainRecord.h"

#include <string>
#include <string_view>

/// What a program without a framework does with JSON: a DOM, a struct filled from it, a writer that walks the struct.
bool readJson(std::string_view text, PlainRecord& record);
std::string writeJson(PlainRecord const& record);
