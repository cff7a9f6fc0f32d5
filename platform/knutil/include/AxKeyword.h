#pragma once

#include <limits>

/// The end of a range that has none.
inline constexpr double axUnbounded = std::numeric_limits<double>::infinity();

/// Closed range of the values that make sense for a member, in its unit.
struct AxRange
{
    double low = -axUnbounded;
    double high = axUnbounded;

    /// False for values outside and for NaN.
    constexpr bool contains(double value) const { return value >= low && value <= high; }
    constexpr bool isBounded() const { return low != -axUnbounded || high != axUnbounded; }

    friend constexpr bool operator==(AxRange const&, AxRange const&) = default;
};

/// Ranges that many members share.
inline constexpr AxRange axNotNegative{0.0, axUnbounded};
inline constexpr AxRange axFraction{0.0, 1.0};

/// What there is to know of a member besides its value. An object of static duration, so that each member keeps one
/// pointer; manual, schema, help and range checks are made from it.
struct AxKeyword
{
    /// The word in front of the value in parameter text.
    char const* text = "";
    /// Unit of the value, such as "m/s"; empty when it has none.
    char const* unit = "";
    /// One line of help, without a newline.
    char const* help = "";
    AxRange range{-axUnbounded, axUnbounded};
};
