#include "AxObjectSensorDescriptor.h"

AxObjectSensorDescriptor::AxObjectSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* parent)
    : AxDescriptorOf(name, parent)
{
    assignDefaultMinTickPeriod(2.0);
}

AxObjectSensorDescriptor::~AxObjectSensorDescriptor() = default;

bool AxObjectSensorDescriptor::detectOnlyHostileForces() const
{
    return myDetectOnlyHostileForces;
}

void AxObjectSensorDescriptor::setDetectOnlyHostileForces(bool only)
{
    assignSpecified(myDetectOnlyHostileForces, only);
}

bool AxObjectSensorDescriptor::detectOwnForce() const
{
    return myDetectOwnForce;
}

void AxObjectSensorDescriptor::setDetectOwnForce(bool detect)
{
    assignSpecified(myDetectOwnForce, detect);
}

AxRwObjectTypeList const& AxObjectSensorDescriptor::detectionTypes() const
{
    return myDetectionTypes;
}

AxRwObjectTypeList& AxObjectSensorDescriptor::detectionTypes()
{
    return myDetectionTypes;
}

bool AxObjectSensorDescriptor::detectDestroyedObjects() const
{
    return myDetectDestroyedObjects;
}

void AxObjectSensorDescriptor::setDetectDestroyedObjects(bool detect)
{
    assignSpecified(myDetectDestroyedObjects, detect);
}

double AxObjectSensorDescriptor::detectionPeriod() const
{
    return myDetectionPeriod;
}

void AxObjectSensorDescriptor::setDetectionPeriod(double period)
{
    assignSpecified(myDetectionPeriod, period);
}

double AxObjectSensorDescriptor::detectionPeriodVariance() const
{
    return myDetectionPeriodVariance;
}

void AxObjectSensorDescriptor::setDetectionPeriodVariance(double variance)
{
    assignSpecified(myDetectionPeriodVariance, variance);
}

bool AxObjectSensorDescriptor::addSensorRangeRing() const
{
    return myAddSensorRangeRing;
}

void AxObjectSensorDescriptor::setAddSensorRangeRing(bool add)
{
    assignSpecified(myAddSensorRangeRing, add);
}

double AxObjectSensorDescriptor::windDegradesWhenAbove() const
{
    return myWindDegradesWhenAbove;
}

void AxObjectSensorDescriptor::setWindDegradesWhenAbove(double speed)
{
    assignSpecified(myWindDegradesWhenAbove, speed);
}

double AxObjectSensorDescriptor::windDegradesSensorPerformanceUntil() const
{
    return myWindDegradesSensorPerformanceUntil;
}

void AxObjectSensorDescriptor::setWindDegradesSensorPerformanceUntil(double speed)
{
    assignSpecified(myWindDegradesSensorPerformanceUntil, speed);
}

double AxObjectSensorDescriptor::windDegradesSensorPerformanceBy() const
{
    return myWindDegradesSensorPerformanceBy;
}

void AxObjectSensorDescriptor::setWindDegradesSensorPerformanceBy(double fraction)
{
    assignSpecified(myWindDegradesSensorPerformanceBy, fraction);
}

double AxObjectSensorDescriptor::precipitationDegradesSensorPerformanceBy() const
{
    return myPrecipitationDegradesSensorPerformanceBy;
}

void AxObjectSensorDescriptor::setPrecipitationDegradesSensorPerformanceBy(double fraction)
{
    assignSpecified(myPrecipitationDegradesSensorPerformanceBy, fraction);
}

double AxObjectSensorDescriptor::suppressionDegradesSensorPerformanceBy() const
{
    return mySuppressionDegradesSensorPerformanceBy;
}

void AxObjectSensorDescriptor::setSuppressionDegradesSensorPerformanceBy(double fraction)
{
    assignSpecified(mySuppressionDegradesSensorPerformanceBy, fraction);
}

AxRwSpatialFilterContainer const& AxObjectSensorDescriptor::sensorGeometry() const
{
    return mySensorGeometry;
}

AxRwSpatialFilterContainer& AxObjectSensorDescriptor::sensorGeometry()
{
    return mySensorGeometry;
}
