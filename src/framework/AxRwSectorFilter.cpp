#include "AxRwSectorFilter.h"

#include <cmath>

namespace
{
/// Whether an angle lies within half of `width` of 0, edges included despite rounding.
bool within(double angle, double width)
{
    constexpr double tolerance = 1e-12;
    return std::abs(angle) <= width / 2.0 + tolerance;
}
} // namespace

AxRwSectorFilter::~AxRwSectorFilter() = default;

bool AxRwSectorFilter::accepts(AxVector64 const& bodyPosition) const
{
    if (!AxRwSphereFilter::accepts(bodyPosition))
    {
        return false;
    }
    if (bodyPosition == AxVector64())
    {
        return true; // the body's own place has no direction
    }
    double const azimuth = std::atan2(bodyPosition.y(), bodyPosition.x());
    double const elevation = std::atan2(-bodyPosition.z(), std::hypot(bodyPosition.x(), bodyPosition.y()));
    return within(std::remainder(azimuth - myAzimuth, 2.0 * thePi), myAzimuthWidth) &&
           within(elevation - myElevation, myElevationWidth);
}

char const* AxRwSectorFilter::filterType() const
{
    return "sector-filter";
}

AxRwSpatialFilter* AxRwSectorFilter::clone() const
{
    return AxRecordOf::copy();
}

double AxRwSectorFilter::azimuth() const
{
    return myAzimuth;
}

void AxRwSectorFilter::setAzimuth(double azimuth)
{
    assignSpecified(myAzimuth, azimuth);
}

double AxRwSectorFilter::azimuthWidth() const
{
    return myAzimuthWidth;
}

void AxRwSectorFilter::setAzimuthWidth(double width)
{
    assignSpecified(myAzimuthWidth, width);
}

double AxRwSectorFilter::elevation() const
{
    return myElevation;
}

void AxRwSectorFilter::setElevation(double elevation)
{
    assignSpecified(myElevation, elevation);
}

double AxRwSectorFilter::elevationWidth() const
{
    return myElevationWidth;
}

void AxRwSectorFilter::setElevationWidth(double width)
{
    assignSpecified(myElevationWidth, width);
}
