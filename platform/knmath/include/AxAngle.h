#pragma once

#include "AxKeyword.h"

#include <numbers>

/// Radians of an angle given in degrees.
constexpr double axRadians(double degrees)
{
    return degrees * (std::numbers::pi / 180.0);
}

/// Ranges of angles in radians: directions to both sides and above and below, and turns of at most a part of a circle.
inline constexpr AxRange axBearing{axRadians(-180.0), axRadians(180.0)};
inline constexpr AxRange axElevation{axRadians(-90.0), axRadians(90.0)};
inline constexpr AxRange axQuarterTurn{0.0, axRadians(90.0)};
inline constexpr AxRange axHalfTurn{0.0, axRadians(180.0)};
inline constexpr AxRange axFullTurn{0.0, axRadians(360.0)};
