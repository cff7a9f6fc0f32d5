#pragma once

#include "AxRecordOf.h"
#include "AxRwBoolean.h"
#include "AxRwEntityType.h"
#include "AxRwReal.h"

/// Under which conditions objects of one type may be acquired as targets, and how long that takes.
class ZEDOBJPARAM_API AxTargetAcquireCriteria : public AxRecordOf<AxTargetAcquireCriteria, "AxTargetAcquireCriteria">
{
public:
    AxTargetAcquireCriteria(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxTargetAcquireCriteria(AxString const& name, AxReaderWriterRegistry* registry);
    AxTargetAcquireCriteria(char const* name, AxReaderWriterRegistry* registry);
    AxTargetAcquireCriteria(AxKeyword const& keyword, AxReaderWriterRegistry* registry);
    AxTargetAcquireCriteria(AxSymbolString name, AxTargetAcquireCriteria const& other,
                            AxReaderWriterRegistry* registry);
    AxTargetAcquireCriteria(AxTargetAcquireCriteria const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxTargetAcquireCriteria() override;
    AxTargetAcquireCriteria& operator=(AxTargetAcquireCriteria const& other);

    AxEntityType const& entityType() const { return myEntityType.value(); }
    void setEntityType(AxEntityType const& type);
    double timeToAcquire() const { return myTimeToAcquire.value(); }
    void setTimeToAcquire(double time);
    bool checkSpeed() const { return myCheckSpeed.value(); }
    void setCheckSpeed(bool check);
    double maxTargetSpeedToAcquire() const { return myMaxTargetSpeed.value(); }
    void setMaxTargetSpeedToAcquire(double speed);
    bool checkAngleToTarget() const { return myCheckAngle.value(); }
    void setCheckAngleToTarget(bool check);
    double maxElevAngleToAcquire() const { return myMaxElevationAngle.value(); }
    void setMaxElevAngleToAcquire(double angle);
    bool checkElevation() const { return myCheckElevation.value(); }
    void setCheckElevation(bool check);
    double maxElevToAcquire() const { return myMaxElevation.value(); }
    void setMaxElevToAcquire(double elevation);

private:
    void markDefaults();

    AxRwEntityType myEntityType{{"entity-type", "", "The target's object type, or a pattern."}, registry()};
    AxRwReal myTimeToAcquire{{"time-to-acquire", "s", "How long acquiring takes.", {0.0, axUnbounded}}, registry()};
    AxRwBoolean myCheckSpeed{
        {"check-maximum-speed-to-acquire", "", "Whether the target's speed is limited."}, true, registry()};
    AxRwReal myMaxTargetSpeed{
        {"max-speed-of-target", "m/s", "Fastest target that can be acquired.", {0.0, axUnbounded}}, 10.0, registry()};
    AxRwBoolean myCheckAngle{
        {"check-elevation-angle-to-acquire", "", "Whether the elevation angle to the target is limited."},
        false,
        registry()};
    AxRwReal myMaxElevationAngle{
        {"max-elevation-angle-to-acquire", "rad", "Largest elevation angle to the target."}, 1.5, registry()};
    AxRwBoolean myCheckElevation{
        {"check-elevation-to-acquire", "", "Whether the target's elevation is limited."}, false, registry()};
    AxRwReal myMaxElevation{
        {"max-elevation-to-acquire", "m", "Highest target that can be acquired."}, 500.0, registry()};
};
