#pragma once

#include <string>
#include <string_view>

/// A unit that users may write.
struct Unit
{
    char const* name;
    char const* base; ///< in which values stand in files
    double factor;
};

/// Null when there is none of that name.
Unit const* unitNamed(std::string_view name);

/// "m/s, km/h or kt": those of values that stand in files in that unit; itself when there are no others.
std::string unitsOf(std::string_view base);

/// A number that was computed, without the traces of binary fractions in its last digits.
std::string tidied(double value);

/// Takes a unit off the end of a value such as "36 km/h" or "45deg" and converts its numbers to `base`. False, and
/// `fault` tells why, for a unit that does not go with that. A value without numbers in front of a word stays as it is.
bool convertUnit(std::string& value, std::string_view base, bool isWhole, std::string& fault);
