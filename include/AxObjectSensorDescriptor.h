#pragma once

#include "AxDescriptorOf.h"
#include "AxRwObjectTypeList.h"
#include "AxRwSpatialFilterContainer.h"

/// A sensor that detects other objects. Base of the signature, NBC and engineering-object sensors. Degradations are
/// fractions of the sensor's performance, 1 for none left.
class ZEDOBJPARAM_API AxObjectSensorDescriptor
    : public AxDescriptorOf<AxObjectSensorDescriptor, AxComponentDescriptor, "object-sensor-descriptor">
{
public:
    /// A sensor ticks every two seconds unless told otherwise.
    AxObjectSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxObjectSensorDescriptor(AxObjectSensorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxObjectSensorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxObjectSensorDescriptor() override;

    virtual bool detectOnlyHostileForces() const;
    virtual void setDetectOnlyHostileForces(bool only);
    virtual bool detectOwnForce() const;
    virtual void setDetectOwnForce(bool detect);
    virtual AxRwObjectTypeList const& detectionTypes() const;
    virtual AxRwObjectTypeList& detectionTypes();
    virtual bool detectDestroyedObjects() const;
    virtual void setDetectDestroyedObjects(bool detect);
    virtual double detectionPeriod() const;
    virtual void setDetectionPeriod(double period);
    virtual double detectionPeriodVariance() const;
    virtual void setDetectionPeriodVariance(double variance);
    virtual bool addSensorRangeRing() const;
    virtual void setAddSensorRangeRing(bool add);
    virtual double windDegradesWhenAbove() const;
    virtual void setWindDegradesWhenAbove(double speed);
    virtual double windDegradesSensorPerformanceUntil() const;
    virtual void setWindDegradesSensorPerformanceUntil(double speed);
    virtual double windDegradesSensorPerformanceBy() const;
    virtual void setWindDegradesSensorPerformanceBy(double fraction);
    virtual double precipitationDegradesSensorPerformanceBy() const;
    virtual void setPrecipitationDegradesSensorPerformanceBy(double fraction);
    virtual double suppressionDegradesSensorPerformanceBy() const;
    virtual void setSuppressionDegradesSensorPerformanceBy(double fraction);
    virtual AxRwSpatialFilterContainer const& sensorGeometry() const;
    virtual AxRwSpatialFilterContainer& sensorGeometry();

private:
    AxRwBoolean myDetectOnlyHostileForces{
        {"detect-only-hostile-forces", "", "Whether objects of other than hostile forces are passed over."},
        registry()};
    AxRwBoolean myDetectOwnForce{{"detect-own-force", "", "Whether objects of the own force are detected."},
                                 registry()};
    AxRwObjectTypeList myDetectionTypes{{"detection-types", "", "Patterns of what is detected; empty: every type."},
                                        registry()};
    AxRwBoolean myDetectDestroyedObjects{{"detect-destroyed-objects", "", "Whether wrecks are detected."}, registry()};
    AxRwReal myDetectionPeriod{{"detection-period", "s", "Time between two looks; 0: every tick.", {0.0, axUnbounded}},
                               registry()};
    AxRwReal myDetectionPeriodVariance{
        {"detection-period-variance", "s", "Spread of the detection period.", {0.0, axUnbounded}}, registry()};
    AxRwBoolean myAddSensorRangeRing{
        {"add-sensor-range-ring", "", "Whether the sensor's range is shown around the object."}, true, registry()};
    AxRwReal myWindDegradesWhenAbove{
        {"wind-degrades-when-above", "m/s", "Wind speed from which the sensor suffers.", {0.0, axUnbounded}},
        registry()};
    AxRwReal myWindDegradesSensorPerformanceUntil{{"wind-degrades-sensor-performance-until",
                                                   "m/s",
                                                   "Wind speed at which the sensor suffers most.",
                                                   {0.0, axUnbounded}},
                                                  registry()};
    AxRwReal myWindDegradesSensorPerformanceBy{
        {"wind-degrades-sensor-performance-by", "", "Fraction of performance lost in full wind.", {0.0, 1.0}},
        registry()};
    AxRwReal myPrecipitationDegradesSensorPerformanceBy{
        {"precipitation-degrades-sensor-performance-by", "", "Fraction lost in full precipitation.", {0.0, 1.0}},
        registry()};
    AxRwReal mySuppressionDegradesSensorPerformanceBy{
        {"suppression-degrades-sensor-performance-by", "", "Fraction lost under full suppression.", {0.0, 1.0}},
        registry()};
    AxRwSpatialFilterContainer mySensorGeometry{
        {"sensor-geometry", "", "Regions around the sensor that it sees; empty: everywhere."}, registry()};
};
