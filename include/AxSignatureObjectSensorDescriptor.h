#pragma once

#include "AxDescriptorOf.h"
#include "AxObjectSensorDescriptor.h"
#include "AxRwBoolean.h"
#include "AxRwDetectionLevelContainer.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxSensorFieldOfViewEntry.h"

/// Detects objects by the signature they show in its domain. Base of the radar and sonar sensors.
class ZEDOBJPARAM_API AxSignatureObjectSensorDescriptor
    : public AxDescriptorOf<AxSignatureObjectSensorDescriptor, AxObjectSensorDescriptor, "signature-sensor-descriptor">
{
public:
    AxSignatureObjectSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSignatureObjectSensorDescriptor(AxSignatureObjectSensorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxSignatureObjectSensorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxSignatureObjectSensorDescriptor() override;

    virtual AxString const& sensorDomain() const { return mySensorDomain.value(); }
    virtual void setSensorDomain(AxString const& domain) { assignSpecified(mySensorDomain, domain); }
    virtual AxVector64 const& sensorOffset() const { return mySensorOffset.value(); }
    virtual void setSensorOffset(AxVector64 const& offset) { assignSpecified(mySensorOffset, offset); }
    virtual double sensorPositionalError() const { return mySensorPositionalError; }
    virtual void setSensorPositionalError(double error) { assignSpecified(mySensorPositionalError, error); }
    virtual double sensorSensitivity() const { return mySensorSensitivity; }
    virtual void setSensorSensitivity(double sensitivity) { assignSpecified(mySensorSensitivity, sensitivity); }
    virtual AxRwDetectionLevelContainer const& detectionLevelDeterminator() const
    {
        return myDetectionLevelDeterminator;
    }
    virtual AxRwDetectionLevelContainer& detectionLevelDeterminator() { return myDetectionLevelDeterminator; }
    virtual bool publishSensorFieldOfView() const { return myPublishSensorFieldOfView; }
    virtual void setPublishSensorFieldOfView(bool publish) { assignSpecified(myPublishSensorFieldOfView, publish); }
    virtual AxSensorFieldOfViewEntry const& sensorFieldOfView() const { return mySensorFieldOfView; }
    virtual AxSensorFieldOfViewEntry& sensorFieldOfView() { return mySensorFieldOfView; }

private:
    AxRwString mySensorDomain{
        {"sensor-domain", "", "Key of the objects' signatures that the sensor perceives, such as \"visual\"."},
        "visual",
        registry()};
    AxRwOffsetVector mySensorOffset{{"sensor-offset", "m", "Place of the sensor in the body frame."}, registry()};
    AxRwReal mySensorPositionalError{
        {"sensor-positional-error", "m", "Error of the reported places of detected objects.", axNotNegative},
        registry()};
    AxRwReal mySensorSensitivity{
        {"sensor-sensitivity", "", "Multiplier of every signature that reaches the sensor.", axNotNegative},
        1.0,
        registry()};
    AxRwDetectionLevelContainer myDetectionLevelDeterminator{
        {"detection-level-determinator", "", "How a signal becomes a detection level, from detected to identified."},
        registry()};
    AxRwBoolean myPublishSensorFieldOfView{
        {"publish-sensor-field-of-view", "", "Whether other applications are told the field of view."}, registry()};
    AxSensorFieldOfViewEntry mySensorFieldOfView{
        {"sensor-field-of-view", "", "Field of view that is published; it limits no detection."}, registry()};
};
