#pragma once

#include <random>
#include <string>

/// A number of up to 20 digits, with or without a point and a sign.
inline std::string anyDecimal(std::mt19937& engine)
{
    auto const pick = [&](unsigned count) { return static_cast<unsigned>(engine() % count); };
    std::string text = pick(3) == 0 ? "-" : "";
    for (unsigned digits = 1 + pick(20), point = pick(20); digits != 0; --digits)
    {
        text += static_cast<char>('0' + pick(10));
        text += digits == point ? "." : "";
    }
    return text;
}
