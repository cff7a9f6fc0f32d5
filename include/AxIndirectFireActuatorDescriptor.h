#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"
#include "AxWeaponActuatorDescriptor.h"

/// A weapon that fires at places out of sight, such as a mortar or howitzer: the scatter of its rounds and the way
/// they travel. A probable error is exceeded by half of the rounds.
class ZEDOBJPARAM_API AxIndirectFireActuatorDescriptor
    : public AxDescriptorOf<AxIndirectFireActuatorDescriptor, AxWeaponActuatorDescriptor,
                            "indirect-fire-actuator-descriptor">
{
public:
    AxIndirectFireActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxIndirectFireActuatorDescriptor(AxIndirectFireActuatorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxIndirectFireActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxIndirectFireActuatorDescriptor() override;

    virtual double probableErrorInRange() const { return myProbableErrorInRange; }
    virtual void setProbableErrorInRange(double error) { assignSpecified(myProbableErrorInRange, error); }
    virtual double probableErrorInDisplacement() const { return myProbableErrorInDisplacement; }
    virtual void setProbableErrorInDisplacement(double error) { assignSpecified(myProbableErrorInDisplacement, error); }
    virtual double probableErrorInBurstHeight() const { return myProbableErrorInBurstHeight; }
    virtual void setProbableErrorInBurstHeight(double error) { assignSpecified(myProbableErrorInBurstHeight, error); }
    virtual bool simulateMunition() const { return mySimulateMunition; }
    virtual void setSimulateMunition(bool simulate) { assignSpecified(mySimulateMunition, simulate); }
    virtual bool highAngle() const { return myHighAngle; }
    virtual void setHighAngle(bool high) { assignSpecified(myHighAngle, high); }

private:
    AxRwReal myProbableErrorInRange{
        {"probable-error-in-range", "m", "Probable error along the line of fire.", axNotNegative}, 25.0, registry()};
    AxRwReal myProbableErrorInDisplacement{
        {"probable-error-in-displacement", "m", "Probable error across the line of fire.", axNotNegative},
        8.0,
        registry()};
    AxRwReal myProbableErrorInBurstHeight{
        {"probable-error-in-burst-height", "m", "Probable error of the height of an air burst.", axNotNegative},
        5.0,
        registry()};
    AxRwBoolean mySimulateMunition{
        {"simulate-munition", "", "Whether each round flies as an object of its own instead of only detonating."},
        registry()};
    AxRwBoolean myHighAngle{
        {"high-angle", "", "Whether rounds take the steeper of the two trajectories to the target."}, registry()};
};
