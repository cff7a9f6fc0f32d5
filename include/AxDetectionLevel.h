#pragma once

#include "AxExport.h"

#include <string_view>

/// How much a sensor knows of an object; each level includes those below.
enum class AxDetectionLevel : int
{
    None = 0,
    Detected = 1,
    Classified = 2,
    Recognized = 3,
    Identified = 4
};

/// The word for a level in data: "none", "detected", "classified", "recognized" or "identified"; empty for a number
/// that is no level. Lives for ever. Detection tables call their outcomes so.
ZEDOBJPARAM_API char const* axDetectionLevelWord(AxDetectionLevel level);

/// The level that `word` stands for; None for any other word, which `found`, unless null, tells apart.
ZEDOBJPARAM_API AxDetectionLevel axDetectionLevel(std::string_view word, bool* found = nullptr);
