#include "AxNumberText.h"

#include "AxCharacters.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <system_error>

namespace
{
/// A number token taken apart: mantissa * 10^exponent, exact as long as no digit was dropped.
struct NumberScan
{
    bool isNumber = false;
    bool isNegative = false;
    bool isExact = true;
    std::uint64_t mantissa = 0;
    int exponent = 0;
};

constexpr std::uint64_t theMantissaLimit = 100'000'000'000'000'000;
constexpr int theExponentLimit = 100'000;

NumberScan scanNumber(std::string_view token)
{
    NumberScan scan;
    char const* at = token.data();
    char const* const end = at + token.size();
    if (at != end && (*at == '+' || *at == '-'))
    {
        scan.isNegative = *at++ == '-';
    }
    bool anyDigit = false;
    int scale = 0;
    auto const takeDigits = [&](int step)
    {
        for (; at != end && axIsDigit(*at); ++at)
        {
            anyDigit = true;
            if (scan.mantissa < theMantissaLimit)
            {
                scan.mantissa = scan.mantissa * 10 + static_cast<std::uint64_t>(*at - '0');
                scale += step;
            }
            else
            {
                scan.isExact = false;
            }
        }
    };
    takeDigits(0);
    if (at != end && *at == '.')
    {
        ++at;
        takeDigits(-1);
    }
    if (!anyDigit)
    {
        return scan;
    }
    if (at != end && *at == 'e')
    {
        ++at;
        bool isNegative = false;
        if (at != end && (*at == '+' || *at == '-'))
        {
            isNegative = *at++ == '-';
        }
        if (at == end)
        {
            return scan;
        }
        for (; at != end && axIsDigit(*at); ++at)
        {
            scan.exponent = scan.exponent < theExponentLimit ? scan.exponent * 10 + (*at - '0') : scan.exponent;
        }
        scan.exponent = isNegative ? -scan.exponent : scan.exponent;
    }
    scan.exponent += scale;
    scan.isNumber = at == end;
    return scan;
}

/// Every power of ten that a double holds exactly.
constexpr std::array<double, 23> thePowersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                                1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// What every sort of number ends in: the digits, or nothing if there was no room.
char* written(char* to, std::to_chars_result const& result)
{
    return result.ec == std::errc() ? result.ptr : to;
}

char* writeDigits(char* to, std::uint64_t value)
{
    return std::to_chars(to, to + std::numeric_limits<std::uint64_t>::digits10 + 1, value).ptr;
}
} // namespace

void axAppendInt(std::string& out, long long value)
{
    char buffer[axLongestNumber];
    out.append(buffer, axWriteInt(buffer, value));
}

char* axWriteInt(char* to, long long value)
{
    auto magnitude = static_cast<std::uint64_t>(value);
    if (value < 0)
    {
        *to++ = '-';
        magnitude = 0 - magnitude;
    }
    return writeDigits(to, magnitude);
}

void axAppendReal(std::string& out, double value)
{
    char buffer[axLongestNumber];
    out.append(buffer, axWriteReal(buffer, value));
}

char* axWriteReal(char* to, double value)
{
    double const magnitude = std::fabs(value);
    // Below 1e12 three decimals make at most 15 digits, and two different texts of 15 digits never stand for one
    // double: the text is the shortest as soon as it reads back.
    if (magnitude < 1e12)
    {
        auto const thousandths = static_cast<std::uint64_t>(static_cast<std::int64_t>(magnitude * 1000.0 + 0.5));
        if (static_cast<double>(static_cast<std::int64_t>(thousandths)) / 1000.0 == magnitude)
        {
            if (std::signbit(value))
            {
                *to++ = '-';
            }
            to = writeDigits(to, thousandths / 1000);
            auto const decimals = static_cast<int>(thousandths % 1000);
            char const digits[] = {'.', static_cast<char>('0' + decimals / 100),
                                   static_cast<char>('0' + decimals / 10 % 10), static_cast<char>('0' + decimals % 10)};
            std::memcpy(to, digits, sizeof digits);
            return to + (decimals % 100 == 0 ? 2 : decimals % 10 == 0 ? 3 : 4);
        }
    }
    if (!(magnitude <= std::numeric_limits<double>::max()))
    {
        std::string_view const word = std::isnan(value) ? "nan" : value < 0.0 ? "-inf" : "inf";
        return std::copy(word.begin(), word.end(), to);
    }
    if (magnitude < 1e-5 || magnitude >= 1e15)
    {
        return written(to, std::to_chars(to, to + axLongestNumber, value, std::chars_format::scientific));
    }
    char* end = written(to, std::to_chars(to, to + axLongestNumber - 2, value, std::chars_format::fixed));
    if (std::find(to, end, '.') == end)
    {
        *end++ = '.';
        *end++ = '0';
    }
    return end;
}

bool axIsNumber(std::string_view token)
{
    return scanNumber(token).isNumber;
}

bool axParseReal(std::string_view token, double& value)
{
    NumberScan const scan = scanNumber(token);
    if (!scan.isNumber)
    {
        return false;
    }
    // One operation on two exact numbers rounds once, to the nearest double.
    constexpr std::uint64_t exactIntegers = std::uint64_t(1) << std::numeric_limits<double>::digits;
    constexpr int largestPower = static_cast<int>(thePowersOfTen.size()) - 1;
    if (scan.isExact && scan.mantissa <= exactIntegers && std::abs(scan.exponent) <= largestPower)
    {
        auto const mantissa = static_cast<double>(scan.isNegative ? -static_cast<std::int64_t>(scan.mantissa)
                                                                  : static_cast<std::int64_t>(scan.mantissa));
        double const power = thePowersOfTen[static_cast<std::size_t>(std::abs(scan.exponent))];
        double const magnitude = std::fabs(scan.exponent < 0 ? mantissa / power : mantissa * power);
        value = scan.isNegative ? -magnitude : magnitude;
        return true;
    }
    char const* const begin = token.data() + (token.front() == '+' ? 1 : 0);
    char const* const end = token.data() + token.size();
    double read = 0.0;
    auto const [stop, error] = std::from_chars(begin, end, read);
    bool const vanished = read == 0.0 && scan.mantissa != 0;
    if (error != std::errc() || stop != end || vanished || std::isinf(read))
    {
        return false;
    }
    value = read;
    return true;
}

bool axParseInt(std::string_view token, long long& value)
{
    bool const plus = token.size() > 1 && token[0] == '+' && axIsDigit(token[1]);
    char const* const begin = token.data() + (plus ? 1 : 0);
    char const* const end = token.data() + token.size();
    long long read = 0;
    auto const [stop, error] = std::from_chars(begin, end, read);
    if (error != std::errc() || stop != end)
    {
        return false;
    }
    value = read;
    return true;
}
