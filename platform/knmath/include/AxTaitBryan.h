#pragma once

#include <array>
#include <cstddef>

#include "AxExport.h"

/// Orientation of a body as the protocol's Euler angles, radians, applied in this order: psi about z, theta about the
/// new y, phi about the new x. Stored as given, never normalised.
class ZEDOBJPARAM_API AxTaitBryan
{
public:
    constexpr AxTaitBryan() = default;
    constexpr AxTaitBryan(double psi, double theta, double phi) : myAngles{psi, theta, phi} {}

    constexpr double psi() const { return myAngles[0]; }
    constexpr double theta() const { return myAngles[1]; }
    constexpr double phi() const { return myAngles[2]; }
    constexpr void setPsi(double psi) { myAngles[0] = psi; }
    constexpr void setTheta(double theta) { myAngles[1] = theta; }
    constexpr void setPhi(double phi) { myAngles[2] = phi; }

    /// `index` 0, 1, 2 for psi, theta, phi.
    constexpr double operator[](int index) const { return myAngles[static_cast<std::size_t>(index)]; }
    constexpr double& operator[](int index) { return myAngles[static_cast<std::size_t>(index)]; }

    /// Exact: the same orientation by other angles is not equal.
    friend constexpr bool operator==(AxTaitBryan const&, AxTaitBryan const&) = default;

private:
    std::array<double, 3> myAngles{};
};
