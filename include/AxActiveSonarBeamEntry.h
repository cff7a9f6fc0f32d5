#pragma once

#include "AxRecordOf.h"
#include "AxRwInt.h"
#include "AxRwReal.h"

#include <numbers>

/// One beam of an active sonar, as the protocol describes it (IEEE 1278.1, underwater acoustic).
class ZEDOBJPARAM_API AxActiveSonarBeamEntry : public AxRecordOf<AxActiveSonarBeamEntry, "AxActiveSonarBeamEntry">
{
public:
    using AxRecordOf::AxRecordOf;
    /// Named "beam", as the elements of a system's list are.
    AxActiveSonarBeamEntry() : AxRecordOf("beam", nullptr) {}
    ~AxActiveSonarBeamEntry() override;

    virtual int parameterIndex() const { return myParameterIndex; }
    virtual void setParameterIndex(int index) { assignSpecified(myParameterIndex, index); }
    virtual int scanPattern() const { return myScanPattern; }
    virtual void setScanPattern(int pattern) { assignSpecified(myScanPattern, pattern); }
    virtual double azimuthCenter() const { return myAzimuthCenter; }
    virtual void setAzimuthCenter(double radians) { assignSpecified(myAzimuthCenter, radians); }
    virtual double azimuthWidth() const { return myAzimuthWidth; }
    virtual void setAzimuthWidth(double radians) { assignSpecified(myAzimuthWidth, radians); }
    virtual double elevationCenter() const { return myElevationCenter; }
    virtual void setElevationCenter(double radians) { assignSpecified(myElevationCenter, radians); }
    virtual double elevationWidth() const { return myElevationWidth; }
    virtual void setElevationWidth(double radians) { assignSpecified(myElevationWidth, radians); }

private:
    static constexpr double thePi = std::numbers::pi;
    static constexpr double theFullCircle = 6.2832; // as data round it

    AxRwInt myParameterIndex{{"parameter-index", "", "Index of the beam in a database of sonars.", {0.0, 65535.0}},
                             registry()};
    AxRwInt myScanPattern{{"scan-pattern", "", "How the beam scans, by the protocol's list.", {0.0, 65535.0}},
                          registry()};
    AxRwReal myAzimuthCenter{{"azimuth-center", "rad", "Azimuth of the beam's middle.", {-thePi, 2.0 * thePi}},
                             registry()};
    AxRwReal myAzimuthWidth{{"azimuth-width", "rad", "Full width in azimuth.", {0.0, theFullCircle}}, registry()};
    AxRwReal myElevationCenter{
        {"elevation-center", "rad", "Elevation of the beam's middle.", {-thePi / 2.0, thePi / 2.0}}, registry()};
    AxRwReal myElevationWidth{{"elevation-width", "rad", "Full width in elevation.", {0.0, thePi}}, registry()};
};
