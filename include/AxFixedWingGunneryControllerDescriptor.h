#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// A controller that flies a fixed-wing aircraft through gun attacks: strafing runs on ground targets and passes at
/// aircraft.
class ZEDOBJPARAM_API AxFixedWingGunneryControllerDescriptor
    : public AxDescriptorOf<AxFixedWingGunneryControllerDescriptor, AxComponentDescriptor,
                            "fixed-wing-gunnery-controller-descriptor">
{
public:
    AxFixedWingGunneryControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxFixedWingGunneryControllerDescriptor(AxFixedWingGunneryControllerDescriptor const& other,
                                           AxReaderWriterRegistry* registry)
        : AxFixedWingGunneryControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxFixedWingGunneryControllerDescriptor() override;

    virtual double maxAlignmentAngle() const { return myMaxAlignmentAngle; }
    virtual void setMaxAlignmentAngle(double angle) { assignSpecified(myMaxAlignmentAngle, angle); }
    virtual double entryAltitude() const { return myEntryAltitude; }
    virtual void setEntryAltitude(double altitude) { assignSpecified(myEntryAltitude, altitude); }
    virtual double entryAirspeed() const { return myEntryAirspeed; }
    virtual void setEntryAirspeed(double airspeed) { assignSpecified(myEntryAirspeed, airspeed); }
    virtual double diveAngle() const { return myDiveAngle; }
    virtual void setDiveAngle(double angle) { assignSpecified(myDiveAngle, angle); }
    virtual double strafeRange() const { return myStrafeRange; }
    virtual void setStrafeRange(double range) { assignSpecified(myStrafeRange, range); }
    virtual double aaEngageRange() const { return myAaEngageRange; }
    virtual void setAaEngageRange(double range) { assignSpecified(myAaEngageRange, range); }
    virtual double aaBreakoffRange() const { return myAaBreakoffRange; }
    virtual void setAaBreakoffRange(double range) { assignSpecified(myAaBreakoffRange, range); }

private:
    AxRwReal myMaxAlignmentAngle{
        {"max-alignment-angle", "rad", "Largest angle between nose and target at which the gun fires.", axHalfTurn},
        axRadians(5.0),
        registry()};
    AxRwReal myEntryAltitude{
        {"entry-altitude", "m", "Height above ground at which a strafing run begins.", axNotNegative},
        1500.0,
        registry()};
    AxRwReal myEntryAirspeed{
        {"entry-airspeed", "m/s", "Airspeed at which a strafing run begins.", axNotNegative}, 200.0, registry()};
    AxRwReal myDiveAngle{{"dive-angle", "rad", "Angle of the dive at the target, below the horizon.", axQuarterTurn},
                         axRadians(15.0),
                         registry()};
    AxRwReal myStrafeRange{{"strafe-range", "m", "Distance to a ground target at which firing begins.", axNotNegative},
                           1500.0,
                           registry()};
    AxRwReal myAaEngageRange{
        {"aa-engage-range", "m", "Distance to an air target at which firing begins.", axNotNegative},
        1000.0,
        registry()};
    AxRwReal myAaBreakoffRange{
        {"aa-breakoff-range", "m", "Distance to an air target at which the pass is broken off.", axNotNegative},
        300.0,
        registry()};
};
