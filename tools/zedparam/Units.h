#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// A unit that users may write.
struct Unit
{
    char const* name;
    char const* base; ///< in which values stand in files
    double factor;
};

/// Behind the number that the text begins with, as long as it can be: before the unit of "45deg"; 0 without a number.
std::size_t numberEnd(std::string_view text);

/// Null when there is none of that name.
Unit const* unitNamed(std::string_view name);

/// "m/s, km/h or kt": those of values that stand in files in that unit; itself when there are no others.
std::string unitsOf(std::string_view base);

/// A number that was computed, without the traces of binary fractions in its last digits.
std::string tidied(double value);

/// A number with that unit as it stands in files. It is the product, but for the traces of binary fractions where a
/// number of few digits was meant: 36 km/h are 10 m/s.
double inFileUnit(double value, Unit const& unit);

/// Takes a unit off the end of a value such as "36 km/h" or "45deg" and converts its numbers to `base`. False, and
/// `fault` tells why, for a unit that does not go with that or a number beyond a double. A value without numbers in
/// front of a word stays as it is.
bool convertUnit(std::string& value, std::string_view base, bool isWhole, std::string& fault);
