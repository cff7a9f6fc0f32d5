#pragma once

#include <string>

#include "AxKeyword.h"

/// "0.0 or more", "0.0 to 1.0" or "at most 5.0"; of a range that is bounded.
std::string rangeText(AxRange const& range);
