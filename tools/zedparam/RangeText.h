#pragma once

#include <string>

#include "AxKeyword.h"

class AxReaderWriter;

/// "0.0 or more", "0.0 to 1.0" or "at most 5.0"; of a range that is bounded.
std::string rangeText(AxRange const& range);

/// What is wrong with the number that a member holds, such as "-1.0, expected 0.0 or more"; empty when nothing is, and
/// for what is no number or has no range.
std::string rangeFault(AxReaderWriter const& rw);
/// The same by a range that the member itself does not have.
std::string rangeFault(AxReaderWriter const& rw, AxRange const& range);
