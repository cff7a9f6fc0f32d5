#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxJoyDeviceControllerDescriptor.h"
#include "AxRwInt.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// Points a gimballed sensor: at rest, scanning between two azimuths, at a target, or by joystick.
class ZEDOBJPARAM_API AxSensorGimbalControllerDescriptor
    : public AxDescriptorOf<AxSensorGimbalControllerDescriptor, AxJoyDeviceControllerDescriptor,
                            "sensor-gimbal-controller-descriptor">
{
public:
    AxSensorGimbalControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSensorGimbalControllerDescriptor(AxSensorGimbalControllerDescriptor const& other,
                                       AxReaderWriterRegistry* registry)
        : AxSensorGimbalControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxSensorGimbalControllerDescriptor() override;

    virtual double neutralAzimuth() const { return myNeutralAzimuth; }
    virtual void setNeutralAzimuth(double azimuth) { assignSpecified(myNeutralAzimuth, azimuth); }
    virtual double neutralElevation() const { return myNeutralElevation; }
    virtual void setNeutralElevation(double elevation) { assignSpecified(myNeutralElevation, elevation); }
    virtual double scanRate() const { return myScanRate; }
    virtual void setScanRate(double rate) { assignSpecified(myScanRate, rate); }
    virtual double scanElevationAngle() const { return myScanElevationAngle; }
    virtual void setScanElevationAngle(double angle) { assignSpecified(myScanElevationAngle, angle); }
    virtual double maxScanAzimuth() const { return myMaxScanAzimuth; }
    virtual void setMaxScanAzimuth(double azimuth) { assignSpecified(myMaxScanAzimuth, azimuth); }
    virtual double minScanAzimuth() const { return myMinScanAzimuth; }
    virtual void setMinScanAzimuth(double azimuth) { assignSpecified(myMinScanAzimuth, azimuth); }
    virtual double maxRange() const { return myMaxRange; }
    virtual void setMaxRange(double range) { assignSpecified(myMaxRange, range); }
    virtual double maxZoomLevel() const { return myMaxZoomLevel; }
    virtual void setMaxZoomLevel(double level) { assignSpecified(myMaxZoomLevel, level); }
    virtual int azimuthArtPartType() const { return myAzimuthArtPartType; }
    virtual void setAzimuthArtPartType(int type) { assignSpecified(myAzimuthArtPartType, type); }
    virtual int elevationArtPartType() const { return myElevationArtPartType; }
    virtual void setElevationArtPartType(int type) { assignSpecified(myElevationArtPartType, type); }
    virtual AxString const& sensorId() const { return mySensorId.value(); }
    virtual void setSensorId(AxString const& id) { assignSpecified(mySensorId, id); }

private:
    AxRwReal myNeutralAzimuth{
        {"neutral-azimuth", "rad", "Azimuth at rest, positive to the right of the nose.", axBearing}, registry()};
    AxRwReal myNeutralElevation{
        {"neutral-elevation", "rad", "Elevation at rest, positive up from the body's plane.", axElevation}, registry()};
    AxRwReal myScanRate{
        {"scan-rate", "rad/s", "Turn in azimuth while scanning.", axNotNegative}, axRadians(10.0), registry()};
    AxRwReal myScanElevationAngle{
        {"scan-elevation-angle", "rad", "Elevation that is held while scanning, positive up.", axElevation},
        registry()};
    AxRwReal myMaxScanAzimuth{
        {"max-scan-azimuth", "rad", "Right end of the scan, positive to the right of the nose.", axBearing},
        axRadians(45.0),
        registry()};
    AxRwReal myMinScanAzimuth{
        {"min-scan-azimuth", "rad", "Left end of the scan, negative to the left of the nose.", axBearing},
        axRadians(-45.0),
        registry()};
    AxRwReal myMaxRange{
        {"max-range", "m", "Distance of the farthest point that is looked at.", axNotNegative}, 10000.0, registry()};
    AxRwReal myMaxZoomLevel{
        {"max-zoom-level", "", "Strongest magnification of the picture; 1: none.", axNotNegative}, 10.0, registry()};
    AxRwInt myAzimuthArtPartType{{"azimuth-art-part-type", "",
                                  "DIS class of the articulated part that shows the azimuth; 0: none.", axNotNegative},
                                 registry()};
    AxRwInt myElevationArtPartType{{"elevation-art-part-type", "",
                                    "DIS class of the articulated part that shows the elevation; 0: none.",
                                    axNotNegative},
                                   registry()};
    AxRwString mySensorId{{"sensor-id", "", "Identifier of the sensor whose gimbal is steered."}, registry()};
};
