#include "Units.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "AxNumberText.h"

namespace
{
constexpr Unit theUnits[] = {
    {"m", "m", 1.0},
    {"km", "m", 1000.0},
    {"cm", "m", 0.01},
    {"ft", "m", 0.3048},
    {"nmi", "m", 1852.0},
    {"m/s", "m/s", 1.0},
    {"km/h", "m/s", 1.0 / 3.6},
    {"kt", "m/s", 1852.0 / 3600.0},
    {"m/s2", "m/s2", 1.0},
    {"rad", "rad", 1.0},
    {"deg", "rad", std::numbers::pi / 180.0},
    {"rad/s", "rad/s", 1.0},
    {"deg/s", "rad/s", std::numbers::pi / 180.0},
    {"s", "s", 1.0},
    {"ms", "s", 0.001},
    {"min", "s", 60.0},
    {"h", "s", 3600.0},
    {"kg", "kg", 1.0},
    {"t", "kg", 1000.0},
    {"Hz", "Hz", 1.0},
    {"kHz", "Hz", 1e3},
    {"MHz", "Hz", 1e6},
    {"GHz", "Hz", 1e9},
};

/// The number that so many digits name.
double rounded(double value, int digits)
{
    std::array<char, axLongestNumber> text{};
    auto const end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, digits);
    std::from_chars(text.data(), end.ptr, value);
    return value;
}

constexpr int theExactDigits = 15;

std::string textOf(double value, bool isWhole)
{
    std::string text;
    axAppendReal(text, value);
    return isWhole && text.ends_with(".0") ? text.substr(0, text.size() - 2) : text;
}

std::vector<std::string> wordsOf(std::string const& value)
{
    std::vector<std::string> words(1);
    for (char const byte : value)
    {
        if (std::isspace(static_cast<unsigned char>(byte)) == 0)
        {
            words.back() += byte;
        }
        else if (!words.back().empty())
        {
            words.emplace_back();
        }
    }
    if (words.back().empty())
    {
        words.pop_back();
    }
    return words;
}

/// "45deg" becomes "45" and "deg".
void splitLast(std::vector<std::string>& words, std::string_view base)
{
    std::string const last = words.back();
    std::size_t const end = numberEnd(last);
    std::string const unit = last.substr(end);
    if (end != 0 && (unitNamed(unit) != nullptr || (!unit.empty() && unit == base)))
    {
        words.back().resize(end);
        words.push_back(unit);
    }
}
} // namespace

std::size_t numberEnd(std::string_view text)
{
    std::size_t end = text.size();
    while (end > 0 && !axIsNumber(text.substr(0, end)))
    {
        --end;
    }
    return end;
}

std::string tidied(double value)
{
    return textOf(rounded(value, theExactDigits), false);
}

double inFileUnit(double value, Unit const& unit)
{
    double const product = value * unit.factor;
    double const shorter = rounded(product, theExactDigits);
    return shorter == rounded(product, theExactDigits - 3) ? shorter : product;
}

Unit const* unitNamed(std::string_view name)
{
    auto const found = std::ranges::find(theUnits, name, [](Unit const& unit) { return std::string_view(unit.name); });
    return found != std::end(theUnits) ? found : nullptr;
}

std::string unitsOf(std::string_view base)
{
    std::vector<std::string> names;
    for (Unit const& unit : theUnits)
    {
        if (unit.base == base)
        {
            names.emplace_back(unit.name);
        }
    }
    std::string text(names.empty() ? base : names.front());
    for (std::size_t i = 1; i < names.size(); ++i)
    {
        text.append(i + 1 == names.size() ? " or " : ", ").append(names[i]);
    }
    return text;
}

bool convertUnit(std::string& value, std::string_view base, bool isWhole, std::string& fault)
{
    std::vector<std::string> words = wordsOf(value);
    if (words.empty())
    {
        return true;
    }
    splitLast(words, base);
    std::string const name = words.back();
    words.pop_back();
    bool const isWord = std::isalpha(static_cast<unsigned char>(name.front())) != 0;
    if (words.empty() || !isWord || axIsNumber(name) || !std::ranges::all_of(words, axIsNumber))
    {
        return true;
    }
    Unit const* const unit = unitNamed(name);
    bool const isSame = !base.empty() && name == base;
    if (!isSame && (unit == nullptr || unit->base != base))
    {
        fault = (base.empty() ? "has no unit" : "is in " + std::string(base)) + ", found \"" + name + "\"";
        fault += unitNamed(base) == nullptr ? std::string() : "; expected " + unitsOf(base);
        return false;
    }
    std::string converted;
    for (std::string const& word : words)
    {
        double number = 0.0;
        bool const isKept = isSame || unit->factor == 1.0;
        bool const isNumber = axParseReal(word, number);
        number = isKept ? number : inFileUnit(number, *unit);
        if (!isNumber || !std::isfinite(number))
        {
            fault = "expects a number, found " + word + ' ' + name + ", beyond the range of a double";
            return false;
        }
        converted.append(converted.empty() ? "" : " ").append(isKept ? word : textOf(number, isWhole));
    }
    value = std::move(converted);
    return true;
}
