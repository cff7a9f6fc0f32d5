#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"
#include "AxRwSoilSpeedFactorList.h"

/// Walks and runs a human over the ground, within limits of slope and soil.
class ZEDOBJPARAM_API AxHumanMovementActuatorDescriptor
    : public AxDescriptorOf<AxHumanMovementActuatorDescriptor, AxActuatorComponentDescriptor,
                            "human-movement-actuator-descriptor">
{
public:
    AxHumanMovementActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxHumanMovementActuatorDescriptor(AxHumanMovementActuatorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxHumanMovementActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxHumanMovementActuatorDescriptor() override;

    virtual bool checkTerrainCollisions() const { return myCheckTerrainCollisions; }
    virtual void setCheckTerrainCollisions(bool check) { assignSpecified(myCheckTerrainCollisions, check); }
    virtual double maxUprightTerrainPitch() const { return myMaxUprightTerrainPitch; }
    virtual void setMaxUprightTerrainPitch(double pitch) { assignSpecified(myMaxUprightTerrainPitch, pitch); }
    virtual double maxWalkingSpeed() const { return myMaxWalkingSpeed; }
    virtual void setMaxWalkingSpeed(double speed) { assignSpecified(myMaxWalkingSpeed, speed); }
    virtual AxRwSoilSpeedFactorList const& soilToMaxSpeedFactorMap() const { return mySoilToMaxSpeedFactorMap; }
    virtual AxRwSoilSpeedFactorList& soilToMaxSpeedFactorMap() { return mySoilToMaxSpeedFactorMap; }
    virtual bool constrainFacingTurnRate() const { return myConstrainFacingTurnRate; }
    virtual void setConstrainFacingTurnRate(bool constrain) { assignSpecified(myConstrainFacingTurnRate, constrain); }
    virtual double maxFacingTurnRate() const { return myMaxFacingTurnRate; }
    virtual void setMaxFacingTurnRate(double rate) { assignSpecified(myMaxFacingTurnRate, rate); }

private:
    AxRwBoolean myCheckTerrainCollisions{
        {"check-terrain-collisions", "", "Whether walls and other terrain stop the human."}, true, registry()};
    AxRwReal myMaxUprightTerrainPitch{
        {"max-upright-terrain-pitch", "rad", "Steepest slope on which the human stays upright.", axQuarterTurn},
        axRadians(45.0),
        registry()};
    AxRwReal myMaxWalkingSpeed{
        {"max-walking-speed", "m/s", "Speed above which the human runs.", axNotNegative}, 2.0, registry()};
    AxRwSoilSpeedFactorList mySoilToMaxSpeedFactorMap{
        {"soil-to-max-speed-factor-map", "", "Multipliers of the largest speed by soil; a soil not listed: 1."},
        registry()};
    AxRwBoolean myConstrainFacingTurnRate{
        {"constrain-facing-turn-rate", "", "Whether facing another way takes time; otherwise it is at once."},
        true,
        registry()};
    AxRwReal myMaxFacingTurnRate{
        {"max-facing-turn-rate", "rad/s", "Fastest turn of the human on the spot.", axNotNegative},
        axRadians(180.0),
        registry()};
};
