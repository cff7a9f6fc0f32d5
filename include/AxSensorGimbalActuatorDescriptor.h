#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// Turns a sensor in azimuth and elevation against the object that carries it.
class ZEDOBJPARAM_API AxSensorGimbalActuatorDescriptor
    : public AxDescriptorOf<AxSensorGimbalActuatorDescriptor, AxActuatorComponentDescriptor,
                            "sensor-gimbal-actuator-descriptor">
{
public:
    AxSensorGimbalActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSensorGimbalActuatorDescriptor(AxSensorGimbalActuatorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxSensorGimbalActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxSensorGimbalActuatorDescriptor() override;

    virtual double maxElevationRate() const { return myMaxElevationRate; }
    virtual void setMaxElevationRate(double rate) { assignSpecified(myMaxElevationRate, rate); }
    virtual double maxElevationRange() const { return myMaxElevationRange; }
    virtual void setMaxElevationRange(double range) { assignSpecified(myMaxElevationRange, range); }
    virtual double minElevationRange() const { return myMinElevationRange; }
    virtual void setMinElevationRange(double range) { assignSpecified(myMinElevationRange, range); }
    virtual double maxAzimuthRate() const { return myMaxAzimuthRate; }
    virtual void setMaxAzimuthRate(double rate) { assignSpecified(myMaxAzimuthRate, rate); }
    virtual double maxAzimuthRange() const { return myMaxAzimuthRange; }
    virtual void setMaxAzimuthRange(double range) { assignSpecified(myMaxAzimuthRange, range); }
    virtual double minAzimuthRange() const { return myMinAzimuthRange; }
    virtual void setMinAzimuthRange(double range) { assignSpecified(myMinAzimuthRange, range); }
    virtual AxVector64 const& sensorOffset() const { return mySensorOffset.value(); }
    virtual void setSensorOffset(AxVector64 const& offset) { assignSpecified(mySensorOffset, offset); }
    virtual AxString const& sensorId() const { return mySensorId.value(); }
    virtual void setSensorId(AxString const& id) { assignSpecified(mySensorId, id); }

private:
    AxRwReal myMaxElevationRate{
        {"max-elevation-rate", "rad/s", "Fastest turn in elevation.", axNotNegative}, axRadians(60.0), registry()};
    AxRwReal myMaxElevationRange{
        {"max-elevation-range", "rad", "Highest elevation, positive up from the body's plane.", axElevation},
        axRadians(30.0),
        registry()};
    AxRwReal myMinElevationRange{
        {"min-elevation-range", "rad", "Lowest elevation, negative down from the body's plane.", axElevation},
        axRadians(-90.0),
        registry()};
    AxRwReal myMaxAzimuthRate{
        {"max-azimuth-rate", "rad/s", "Fastest turn in azimuth.", axNotNegative}, axRadians(60.0), registry()};
    AxRwReal myMaxAzimuthRange{
        {"max-azimuth-range", "rad", "Limit of azimuth to the right, positive from the nose.", axBearing},
        axRadians(180.0),
        registry()};
    AxRwReal myMinAzimuthRange{
        {"min-azimuth-range", "rad", "Limit of azimuth to the left, negative from the nose.", axBearing},
        axRadians(-180.0),
        registry()};
    AxRwOffsetVector mySensorOffset{{"sensor-offset", "m", "Place of the gimballed sensor in the body frame."},
                                    registry()};
    AxRwString mySensorId{{"sensor-id", "", "Identifier of the sensor that the gimbal carries."}, registry()};
};
