#pragma once

#include <span>
#include <string_view>

#include "AxExport.h"

/// The candidate that takes the fewest inserted, deleted or replaced bytes to become `word`: at most three, and at most
/// half as many as `word` has bytes. The first of equally near ones; empty when none is near enough. The answer is a
/// view of the candidate.
ZEDOBJPARAM_API std::string_view axNearest(std::string_view word, std::span<std::string_view const> candidates);
