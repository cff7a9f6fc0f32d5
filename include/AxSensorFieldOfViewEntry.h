#pragma once

#include "AxRecordOf.h"
#include "AxRwReal.h"

#include <numbers>

/// The field of view that a sensor publishes for others to show. It does not decide what the sensor detects; the
/// sensor's geometry does. Azimuth from forward to the right, elevation upwards.
class ZEDOBJPARAM_API AxSensorFieldOfViewEntry : public AxRecordOf<AxSensorFieldOfViewEntry, "AxSensorFieldOfViewEntry">
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxSensorFieldOfViewEntry() override;

    virtual double azimuth() const { return myAzimuth; }
    virtual void setAzimuth(double radians) { assignSpecified(myAzimuth, radians); }
    virtual double azimuthWidth() const { return myAzimuthWidth; }
    virtual void setAzimuthWidth(double radians) { assignSpecified(myAzimuthWidth, radians); }
    virtual double elevation() const { return myElevation; }
    virtual void setElevation(double radians) { assignSpecified(myElevation, radians); }
    virtual double elevationWidth() const { return myElevationWidth; }
    virtual void setElevationWidth(double radians) { assignSpecified(myElevationWidth, radians); }
    virtual double range() const { return myRange; }
    virtual void setRange(double metres) { assignSpecified(myRange, metres); }

private:
    static constexpr double thePi = std::numbers::pi;
    static constexpr double theFullCircle = 6.2832; // as data round it

    AxRwReal myAzimuth{{"azimuth", "rad", "Azimuth of the field's centre.", {-thePi, 2.0 * thePi}}, registry()};
    AxRwReal myAzimuthWidth{
        {"azimuth-width", "rad", "Full width in azimuth.", {0.0, theFullCircle}}, thePi / 2.0, registry()};
    AxRwReal myElevation{{"elevation", "rad", "Elevation of the field's centre.", {-thePi / 2.0, thePi / 2.0}},
                         registry()};
    AxRwReal myElevationWidth{
        {"elevation-width", "rad", "Full width in elevation.", {0.0, thePi}}, thePi / 4.0, registry()};
    AxRwReal myRange{{"range", "m", "How far the field reaches; 0: as far as the sensor.", {0.0, axUnbounded}},
                     registry()};
};
