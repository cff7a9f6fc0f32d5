#include "AxNumberText.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

namespace
{
std::string text(double value)
{
    std::string out;
    axAppendReal(out, value);
    return out;
}

std::size_t digitCount(std::string const& number)
{
    std::string const digits = number.substr(0, number.find('e'));
    std::string significant;
    for (char const c : digits)
    {
        if (c >= '0' && c <= '9' && !(significant.empty() && c == '0'))
        {
            significant += c;
        }
    }
    return significant.find_last_not_of('0') + 1;
}

double anyDouble(std::mt19937_64& random, int round)
{
    switch (round % 4)
    {
    case 0:
        return std::bit_cast<double>(random());
    case 1:
        return static_cast<double>(static_cast<std::int64_t>(random()) >> (random() % 60)) / 1000.0;
    case 2:
        return static_cast<double>(static_cast<std::int64_t>(random()) >> (random() % 60)) / 100000.0;
    default:
        return std::ldexp(static_cast<double>(random()), static_cast<int>(random() % 200) - 140);
    }
}
} // namespace

TEST(AxNumberText, WritesRealsInOneForm)
{
    struct Case
    {
        double value;
        char const* text;
    };
    for (auto const& [value, expected] : {
             Case{0.0, "0.0"},
             Case{-0.0, "-0.0"},
             Case{5000.0, "5000.0"},
             Case{-1.5, "-1.5"},
             Case{0.1, "0.1"},
             Case{0.35, "0.35"},
             Case{-0.001, "-0.001"},
             Case{0.0001, "0.0001"},
             Case{1e-5, "0.00001"},
             Case{9.999e-6, "9.999e-06"},
             Case{123456789.012, "123456789.012"},
             Case{1e5, "100000.0"},
             Case{4.5e7, "45000000.0"},
             Case{1e12, "1000000000000.0"},
             Case{999999999999999.0, "999999999999999.0"},
             Case{1e15, "1e+15"},
             Case{9.4e20, "9.4e+20"},
             Case{1.5707963267948966, "1.5707963267948966"},
             Case{5e-324, "5e-324"},
             Case{std::numeric_limits<double>::infinity(), "inf"},
             Case{-std::numeric_limits<double>::infinity(), "-inf"},
             Case{std::numeric_limits<double>::quiet_NaN(), "nan"},
             Case{-std::numeric_limits<double>::quiet_NaN(), "nan"},
         })
    {
        EXPECT_EQ(text(value), expected);
    }
}

TEST(AxNumberText, WritesTheShortestTextThatReadsBack)
{
    std::mt19937_64 random(1);
    for (int round = 0; round < 200000; ++round)
    {
        double const value = anyDouble(random, round);
        if (!std::isfinite(value))
        {
            continue;
        }
        std::string const written = text(value);
        double read = 0.0;
        ASSERT_TRUE(axParseReal(written, read)) << written;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(read), std::bit_cast<std::uint64_t>(value)) << written;
        ASSERT_NE(written.find_first_of(".e"), std::string::npos) << written;
        char shortest[64];
        auto const end = std::to_chars(shortest, shortest + sizeof shortest, value, std::chars_format::scientific).ptr;
        ASSERT_EQ(digitCount(written), digitCount(std::string(shortest, end))) << written;
    }
}

TEST(AxNumberText, ReadsEverySpellingToTheNearestDouble)
{
    for (char const* token : {"0",
                              "-0",
                              "+1",
                              "1.",
                              ".5",
                              "-.5e1",
                              "1e5",
                              "1e+05",
                              "1e-5",
                              "007",
                              "123456789012345678901234567890",
                              "9007199254740993",
                              "0.1000000000000000055511151231257827",
                              "1.7976931348623157e308",
                              "4.9e-324",
                              "1e22",
                              "1e23",
                              "123456789012345e22",
                              "0e999999999999",
                              "0.00000000000000000000000000000000000001e38"})
    {
        double read = -1.0;
        EXPECT_TRUE(axIsNumber(token)) << token;
        ASSERT_TRUE(axParseReal(token, read)) << token;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(read), std::bit_cast<std::uint64_t>(std::strtod(token, nullptr)))
            << token;
    }
}

TEST(AxNumberText, RefusesWhatIsNoNumberAsAWhole)
{
    for (char const* token : {"",    "+",   "-",     ".",   "-.",    "e5", "1e", "1e+", "1e5.0", "1E5",  "0x10",
                              "inf", "nan", "120mm", "1:2", "5-ton", " 1", "1 ", "--1", "+-1",   "1..2", "1,5"})
    {
        double read = 7.0;
        EXPECT_FALSE(axIsNumber(token)) << token;
        EXPECT_FALSE(axParseReal(token, read)) << token;
        EXPECT_EQ(read, 7.0);
    }
}

TEST(AxNumberText, RefusesNumbersBeyondTheRange)
{
    for (char const* token : {"1e309", "-1e309", "1e-400", "1e99999999999999999999"})
    {
        double read = 7.0;
        EXPECT_TRUE(axIsNumber(token)) << token;
        EXPECT_FALSE(axParseReal(token, read)) << token;
        EXPECT_EQ(read, 7.0);
    }
}

TEST(AxNumberText, WritesAndReadsIntegers)
{
    for (long long const value :
         {0LL, -1LL, 42LL, std::numeric_limits<long long>::min(), std::numeric_limits<long long>::max()})
    {
        std::string out;
        axAppendInt(out, value);
        EXPECT_EQ(out, std::to_string(value));
        long long read = 7;
        EXPECT_TRUE(axParseInt(out, read));
        EXPECT_EQ(read, value);
    }
    long long read = 7;
    EXPECT_TRUE(axParseInt("+5", read));
    EXPECT_EQ(read, 5);
    for (char const* token : {"", "+", "+-5", "1.0", "5x", " 5", "9223372036854775808"})
    {
        EXPECT_FALSE(axParseInt(token, read)) << token;
    }
    EXPECT_EQ(read, 5);
}
