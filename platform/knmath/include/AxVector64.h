#pragma once

#include <array>
#include <cmath>
#include <cstddef>

#include "AxExport.h"

/// Three doubles: a place, a direction or an extent, in the unit that its holder says.
class ZEDOBJPARAM_API AxVector64
{
public:
    constexpr AxVector64() = default;
    constexpr AxVector64(double x, double y, double z) : myValues{x, y, z} {}

    constexpr double x() const { return myValues[0]; }
    constexpr double y() const { return myValues[1]; }
    constexpr double z() const { return myValues[2]; }
    constexpr void setX(double x) { myValues[0] = x; }
    constexpr void setY(double y) { myValues[1] = y; }
    constexpr void setZ(double z) { myValues[2] = z; }

    /// `index` 0, 1, 2 for x, y, z.
    constexpr double operator[](int index) const { return myValues[static_cast<std::size_t>(index)]; }
    constexpr double& operator[](int index) { return myValues[static_cast<std::size_t>(index)]; }

    constexpr AxVector64& operator+=(AxVector64 const& other) { return *this = *this + other; }
    constexpr AxVector64& operator-=(AxVector64 const& other) { return *this = *this - other; }
    constexpr AxVector64& operator*=(double factor) { return *this = *this * factor; }

    constexpr double dot(AxVector64 const& other) const { return x() * other.x() + y() * other.y() + z() * other.z(); }
    double length() const { return std::sqrt(dot(*this)); }
    constexpr double distSquaredTo(AxVector64 const& other) const
    {
        AxVector64 const d = *this - other;
        return d.dot(d);
    }

    friend constexpr AxVector64 operator+(AxVector64 const& a, AxVector64 const& b)
    {
        return {a.x() + b.x(), a.y() + b.y(), a.z() + b.z()};
    }
    friend constexpr AxVector64 operator-(AxVector64 const& a, AxVector64 const& b)
    {
        return {a.x() - b.x(), a.y() - b.y(), a.z() - b.z()};
    }
    friend constexpr AxVector64 operator-(AxVector64 const& a) { return {-a.x(), -a.y(), -a.z()}; }
    friend constexpr AxVector64 operator*(AxVector64 const& a, double factor)
    {
        return {a.x() * factor, a.y() * factor, a.z() * factor};
    }
    friend constexpr AxVector64 operator*(double factor, AxVector64 const& a) { return a * factor; }

    /// Exact, without a tolerance.
    friend constexpr bool operator==(AxVector64 const&, AxVector64 const&) = default;

private:
    std::array<double, 3> myValues{};
};
