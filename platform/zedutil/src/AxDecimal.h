#pragma once

#include "AxCharacters.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <system_error>

/// Takes the number at `begin` if it is spelled as numbers mostly are, `[-]digits[.digits]`, and answers its end; null,
/// and nothing taken, for any other and for one that is not certain to be a number. The text must end in another byte.
inline char const* axTakeDecimal(char const* const begin, double& value)
{
    static constexpr double powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,
                                        1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19};
    constexpr std::ptrdiff_t mostDigits = 19;                   // that 64 bits hold
    constexpr std::uint64_t mostExact = std::uint64_t{1} << 53; // no double leaves out a whole number up to here
    char const* at = begin;
    bool const isNegative = *at == '-';
    at += isNegative ? 1 : 0;
    char const* const first = at;
    std::uint64_t digits = 0;
    while (axIsDigit(*at))
    {
        digits = digits * 10 + static_cast<std::uint64_t>(*at++ - '0');
    }
    std::ptrdiff_t count = at - first;
    std::ptrdiff_t decimals = 0;
    if (*at == '.')
    {
        char const* const point = ++at;
        while (axIsDigit(*at))
        {
            digits = digits * 10 + static_cast<std::uint64_t>(*at++ - '0');
        }
        decimals = at - point;
        count += decimals;
    }
    if (count == 0 || *at == 'e')
    {
        return nullptr;
    }
    // The quotient of two exact numbers is the nearest double.
    if (count <= mostDigits && digits <= mostExact)
    {
        double const magnitude = static_cast<double>(digits) / powers[decimals];
        value = isNegative ? -magnitude : magnitude;
        return at;
    }
    double read = 0.0;
    auto const [end, error] = std::from_chars(begin, at, read);
    if (error != std::errc() || end != at || read == 0.0)
    {
        return nullptr;
    }
    value = read;
    return at;
}
