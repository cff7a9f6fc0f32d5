#pragma once

#include "AxRecordOf.h"
#include "AxRwReal.h"

/// How far an object may move, turn or change its size from what others extrapolate before its state is sent anew.
class ZEDOBJPARAM_API AxRwDeadReckonThresholds : public AxRecordOf<AxRwDeadReckonThresholds, "AxRwDeadReckonThresholds">
{
public:
    using AxRecordOf::AxRecordOf;
    AxRwDeadReckonThresholds(AxString const& name, AxRwDeadReckonThresholds const& other,
                             AxReaderWriterRegistry* registry);
    AxRwDeadReckonThresholds(AxRwDeadReckonThresholds const& other);
    ~AxRwDeadReckonThresholds() override;
    AxRwDeadReckonThresholds& operator=(AxRwDeadReckonThresholds const& other);
    bool operator==(AxRwDeadReckonThresholds const& other) const { return AxReaderWriter::operator==(other); }

    virtual double translationThreshold() const { return myTranslation; }
    virtual void setTranlationThreshold(double metres) { assignSpecified(myTranslation, metres); }
    virtual double rotationThreshold() const { return myRotation; }
    virtual void setRotationThreshold(double degrees) { assignSpecified(myRotation, degrees); }
    virtual double aggregateDimensionThreshold() const { return myAggregateDimension; }
    virtual void setAggregateDimensionThreshold(double fraction) { assignSpecified(myAggregateDimension, fraction); }

private:
    AxRwReal myTranslation{{"translation", "m", "Error of the position.", {0.0, axUnbounded}}, 1.0, registry()};
    AxRwReal myRotation{{"rotation", "deg", "Error of the orientation.", {0.0, 360.0}}, 3.0, registry()};
    AxRwReal myAggregateDimension{
        {"aggregate-dimension", "", "Error of a unit's extent, as a fraction of it.", {0.0, axUnbounded}},
        0.05,
        registry()};
};
