#pragma once

#include <cmath>

#include "AxExport.h"
#include "AxTaitBryan.h"
#include "AxVector64.h"

/// Direction cosine matrix: turns a vector of the world frame into the body frame.
class ZEDOBJPARAM_API AxDcm
{
public:
    /// No rotation.
    AxDcm() : AxDcm(AxVector64(1.0, 0.0, 0.0), AxVector64(0.0, 1.0, 0.0), AxVector64(0.0, 0.0, 1.0)) {}
    AxDcm(AxVector64 const& row0, AxVector64 const& row1, AxVector64 const& row2) : myRows{row0, row1, row2} {}

    /// The world-to-body rotation R_x(phi) R_y(theta) R_z(psi) of the protocol's Euler angles (IEEE 1278.1).
    explicit AxDcm(AxTaitBryan const& orientation)
    {
        double const sinPsi = std::sin(orientation.psi()), cosPsi = std::cos(orientation.psi());
        double const sinTheta = std::sin(orientation.theta()), cosTheta = std::cos(orientation.theta());
        double const sinPhi = std::sin(orientation.phi()), cosPhi = std::cos(orientation.phi());
        myRows[0] = AxVector64(cosTheta * cosPsi, cosTheta * sinPsi, -sinTheta);
        myRows[1] = AxVector64(sinPhi * sinTheta * cosPsi - cosPhi * sinPsi,
                               sinPhi * sinTheta * sinPsi + cosPhi * cosPsi, sinPhi * cosTheta);
        myRows[2] = AxVector64(cosPhi * sinTheta * cosPsi + sinPhi * sinPsi,
                               cosPhi * sinTheta * sinPsi - sinPhi * cosPsi, cosPhi * cosTheta);
    }

    /// `index` from 0 to 2.
    AxVector64 const& row(int index) const { return myRows[index]; }

    /// The inverse rotation, body to world.
    AxDcm transposed() const
    {
        return {{myRows[0].x(), myRows[1].x(), myRows[2].x()},
                {myRows[0].y(), myRows[1].y(), myRows[2].y()},
                {myRows[0].z(), myRows[1].z(), myRows[2].z()}};
    }

    friend AxVector64 operator*(AxDcm const& matrix, AxVector64 const& v)
    {
        return {matrix.myRows[0].dot(v), matrix.myRows[1].dot(v), matrix.myRows[2].dot(v)};
    }

    friend bool operator==(AxDcm const&, AxDcm const&) = default;

private:
    AxVector64 myRows[3];
};
