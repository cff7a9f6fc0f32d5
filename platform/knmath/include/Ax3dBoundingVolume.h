#pragma once

#include <algorithm>

#include "AxExport.h"
#include "AxVector64.h"

/// Box along the axes of the body frame (x forward, y right, z down), metres.
class ZEDOBJPARAM_API Ax3dBoundingVolume
{
public:
    /// The empty box at the origin.
    constexpr Ax3dBoundingVolume() = default;

    /// Any two opposite corners.
    constexpr Ax3dBoundingVolume(AxVector64 const& a, AxVector64 const& b)
        : myMin(std::min(a.x(), b.x()), std::min(a.y(), b.y()), std::min(a.z(), b.z())),
          myMax(std::max(a.x(), b.x()), std::max(a.y(), b.y()), std::max(a.z(), b.z()))
    {
    }

    constexpr AxVector64 const& min() const { return myMin; }
    constexpr AxVector64 const& max() const { return myMax; }

    constexpr double length() const { return myMax.x() - myMin.x(); }
    constexpr double width() const { return myMax.y() - myMin.y(); }
    constexpr double height() const { return myMax.z() - myMin.z(); }

    /// The centre of the box.
    constexpr AxVector64 offset() const { return (myMin + myMax) * 0.5; }

    /// How far the box reaches below and above its centre: half its height each.
    constexpr double lowerExtent() const { return height() * 0.5; }
    constexpr double upperExtent() const { return height() * 0.5; }

    /// Half the diagonal: the radius of the sphere around the box.
    double radius() const { return (myMax - myMin).length() * 0.5; }

    /// True when the box has no size in any direction.
    constexpr bool isEmpty() const { return myMin == myMax; }

    /// Exact, without a tolerance.
    friend constexpr bool operator==(Ax3dBoundingVolume const&, Ax3dBoundingVolume const&) = default;

private:
    AxVector64 myMin;
    AxVector64 myMax;
};
