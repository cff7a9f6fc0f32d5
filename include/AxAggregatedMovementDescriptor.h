#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// Moves a unit that is simulated as one object, over the ground or in the air.
class ZEDOBJPARAM_API AxAggregatedMovementDescriptor
    : public AxDescriptorOf<AxAggregatedMovementDescriptor, AxActuatorComponentDescriptor,
                            "aggregated-movement-actuator-descriptor">
{
public:
    class MobilityEntry;

    AxAggregatedMovementDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAggregatedMovementDescriptor(AxAggregatedMovementDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxAggregatedMovementDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAggregatedMovementDescriptor() override;

    virtual bool clampToGround() const { return myClampToGround; }
    virtual void setClampToGround(bool clamp) { assignSpecified(myClampToGround, clamp); }
    virtual double retrogradeMovementPenalty() const { return myRetrogradeMovementPenalty; }
    virtual void setRetrogradeMovementPenalty(double factor) { assignSpecified(myRetrogradeMovementPenalty, factor); }
    virtual AxString const& engineeringObjectQueryName() const { return myEngineeringObjectQueryName.value(); }
    virtual void setEngineeringObjectQueryName(AxString const& name)
    {
        assignSpecified(myEngineeringObjectQueryName, name);
    }
    virtual AxString const& engineeringObjectObstacleQueryName() const
    {
        return myEngineeringObjectObstacleQueryName.value();
    }
    virtual void setEngineeringObjectObstacleQueryName(AxString const& name)
    {
        assignSpecified(myEngineeringObjectObstacleQueryName, name);
    }
    /// "ground", "air", "surface" or "subsurface".
    virtual AxString const& movementType() const { return myMovementType.value(); }
    virtual void setMovementType(AxString const& type) { assignSpecified(myMovementType, type); }
    virtual double supplyCheckPeriod() const { return mySupplyCheckPeriod; }
    virtual void setSupplyCheckPeriod(double period) { assignSpecified(mySupplyCheckPeriod, period); }
    virtual double minimumAirborneAgl() const { return myMinimumAirborneAgl; }
    virtual void setMinimumAirborneAgl(double height) { assignSpecified(myMinimumAirborneAgl, height); }
    virtual double defaultAgl() const { return myDefaultAgl; }
    virtual void setDefaultAgl(double height) { assignSpecified(myDefaultAgl, height); }

private:
    AxRwBoolean myClampToGround{{"clamp-to-ground", "", "Whether the unit is kept on the ground."}, true, registry()};
    AxRwReal myRetrogradeMovementPenalty{
        {"retrograde-movement-penalty", "", "Multiplier of the speed of a unit that moves back.", {0.0, axUnbounded}},
        0.5,
        registry()};
    AxRwString myEngineeringObjectQueryName{
        {"engineering-object-query-name", "", "Query that finds the engineering objects that help or hinder the unit."},
        registry()};
    AxRwString myEngineeringObjectObstacleQueryName{
        {"engineering-object-obstacle-query-name", "", "Query that finds those that are obstacles."}, registry()};
    AxRwString myMovementType{
        {"movement-type", "", "How the unit moves: ground, air, surface or subsurface."}, "ground", registry()};
    AxRwReal mySupplyCheckPeriod{
        {"supply-check-period", "s", "Time between two looks at the supplies.", {0.0, axUnbounded}}, 60.0, registry()};
    AxRwReal myMinimumAirborneAgl{
        {"minimum-airborne-agl", "m", "Least height above ground in the air.", {0.0, axUnbounded}}, 50.0, registry()};
    AxRwReal myDefaultAgl{
        {"default-agl", "m", "Height above ground unless ordered.", {0.0, axUnbounded}}, 300.0, registry()};
};

/// How fast a unit is on one kind of terrain. Lists of these are free-form values of a record.
class ZEDOBJPARAM_API AxAggregatedMovementDescriptor::MobilityEntry
    : public AxRecordOf<AxAggregatedMovementDescriptor::MobilityEntry, "AxAggregatedMovementDescriptor_MobilityEntry">
{
public:
    using AxRecordOf::AxRecordOf;
    /// Named "mobility-entry", as the elements of a list are.
    MobilityEntry() : AxRecordOf("mobility-entry", nullptr) {}
    ~MobilityEntry() override;

    virtual AxString const& terrainType() const { return myTerrainType.value(); }
    virtual void setTerrainType(AxString const& type) { assignSpecified(myTerrainType, type); }
    virtual double speedFactor() const { return mySpeedFactor; }
    virtual void setSpeedFactor(double factor) { assignSpecified(mySpeedFactor, factor); }

private:
    AxRwString myTerrainType{{"terrain-type", "", "Kind of terrain."}, registry()};
    AxRwReal mySpeedFactor{
        {"speed-factor", "", "Multiplier of the speed; 0: impassable.", {0.0, axUnbounded}}, 1.0, registry()};
};
