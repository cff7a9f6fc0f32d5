#pragma once

#include "AxRwSphereFilter.h"

#include <numbers>

/// A part of a sphere about a direction. Radians; azimuth from forward to the right, elevation upwards. A place
/// exactly on an edge lies inside.
class ZEDOBJPARAM_API AxRwSectorFilter : public AxRecordOf<AxRwSectorFilter, "AxRwSectorFilter", AxRwSphereFilter>
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxRwSectorFilter() override;

    bool accepts(AxVector64 const& bodyPosition) const override;
    char const* filterType() const override;
    AxRwSpatialFilter* clone() const override;

    virtual double azimuth() const;
    virtual void setAzimuth(double azimuth);
    virtual double azimuthWidth() const;
    virtual void setAzimuthWidth(double width);
    virtual double elevation() const;
    virtual void setElevation(double elevation);
    virtual double elevationWidth() const;
    virtual void setElevationWidth(double width);

private:
    static constexpr double thePi = std::numbers::pi;

    AxRwReal myAzimuth{{"azimuth", "rad", "Azimuth of the sector's centre.", {-thePi, 2.0 * thePi}}, registry()};
    AxRwReal myAzimuthWidth{
        {"azimuth-width", "rad", "Full width in azimuth.", {0.0, 2.0 * thePi}}, 2.0 * thePi, registry()};
    AxRwReal myElevation{{"elevation", "rad", "Elevation of the sector's centre.", {-thePi / 2.0, thePi / 2.0}},
                         registry()};
    AxRwReal myElevationWidth{{"elevation-width", "rad", "Full width in elevation.", {0.0, thePi}}, thePi, registry()};
};
