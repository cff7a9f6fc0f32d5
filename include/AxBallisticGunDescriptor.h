#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRangeProbabilityTable.h"
#include "AxReaderWriterFile.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// A gun that fires unguided rounds, at the object's end of the trigger: how far and how fast it elevates, how fast
/// it fires, and the chance of a hit by range. The chances stand inline or in a file of their own.
class ZEDOBJPARAM_API AxBallisticGunDescriptor
    : public AxDescriptorOf<AxBallisticGunDescriptor, AxActuatorComponentDescriptor, "ballistic-gun-descriptor">
{
public:
    AxBallisticGunDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxBallisticGunDescriptor(AxBallisticGunDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxBallisticGunDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxBallisticGunDescriptor() override;

    virtual double elevationRate() const { return myMaxElevationRate; }
    virtual void setElevationRate(double rate) { assignSpecified(myMaxElevationRate, rate); }
    virtual double maxElevationRange() const { return myMaxElevationRange; }
    virtual void setMaxElevationRange(double range) { assignSpecified(myMaxElevationRange, range); }
    virtual double minElevationRange() const { return myMinElevationRange; }
    virtual void setMinElevationRange(double range) { assignSpecified(myMinElevationRange, range); }
    virtual double neutralElevation() const { return myNeutralElevation; }
    virtual void setNeutralElevation(double elevation) { assignSpecified(myNeutralElevation, elevation); }
    virtual double muzzleSpeed() const { return myMuzzleSpeed; }
    virtual void setMuzzleSpeed(double speed) { assignSpecified(myMuzzleSpeed, speed); }
    virtual int roundsPerMagazine() const { return myRoundsPerMagazine; }
    virtual void setRoundsPerMagazine(int rounds) { assignSpecified(myRoundsPerMagazine, rounds); }
    virtual int roundsPerMinute() const { return myRoundsPerMinute; }
    virtual void setRoundsPerMinute(int rounds) { assignSpecified(myRoundsPerMinute, rounds); }
    virtual double extraTimeBetweenBursts() const { return myExtraTimeBetweenBursts; }
    virtual void setExtraTimeBetweenBursts(double time) { assignSpecified(myExtraTimeBetweenBursts, time); }
    virtual bool startWithTracers() const { return myStartWithTracers; }
    virtual void setStartWithTracers(bool start) { assignSpecified(myStartWithTracers, start); }
    virtual AxVector64 const& muzzleOffset() const { return myMuzzleOffset.value(); }
    virtual void setMuzzleOffset(AxVector64 const& offset) { assignSpecified(myMuzzleOffset, offset); }
    virtual bool velocityCheck() const { return myVelocityAffectsHitChance; }
    virtual void setVelocityCheck(bool check) { assignSpecified(myVelocityAffectsHitChance, check); }
    virtual AxFilename const& hitProbabilityFilename() const { return myHitProbabilityFile.filename(); }
    virtual void setHitProbabilityFilename(AxFilename const& file) { assignSpecified(myHitProbabilityFile, file); }
    virtual AxRangeProbabilityTable const& hitProbabilityTable() const { return myHitProbabilityTable; }
    virtual AxRangeProbabilityTable& hitProbabilityTable() { return myHitProbabilityTable; }
    virtual AxString const& rangeName() const { return myRangeName.value(); }
    virtual void setRangeName(AxString const& name) { assignSpecified(myRangeName, name); }
    virtual bool detonateOnMiss() const { return myDetonateOnMiss; }
    virtual void setDetonateOnMiss(bool detonate) { assignSpecified(myDetonateOnMiss, detonate); }
    virtual int roundsPerDetonation() const { return myRoundsPerDetonation; }
    virtual void setRoundsPerDetonation(int rounds) { assignSpecified(myRoundsPerDetonation, rounds); }
    virtual double burstCep() const { return myBurstCep; }
    virtual void setBurstCep(double cep) { assignSpecified(myBurstCep, cep); }

private:
    AxRwReal myMaxElevationRate{
        {"max-elevation-rate", "rad/s", "Fastest change of elevation; 0: fixed in elevation.", axNotNegative},
        registry()};
    AxRwReal myMaxElevationRange{
        {"max-elevation-range", "rad", "Highest elevation of the barrel over the body, positive up.", axElevation},
        registry()};
    AxRwReal myMinElevationRange{
        {"min-elevation-range", "rad", "Lowest elevation of the barrel, negative below the body's level.", axElevation},
        registry()};
    AxRwReal myNeutralElevation{
        {"neutral-elevation", "rad", "Elevation at which the barrel rests when nothing is aimed at.", axElevation},
        registry()};
    AxRwReal myMuzzleSpeed{{"muzzle-speed", "m/s", "Speed at which a round leaves the barrel.", axNotNegative},
                           registry()};
    AxRwInt myRoundsPerMagazine{
        {"rounds-per-magazine", "", "Rounds fired before the gun has to be loaded again.", axNotNegative},
        1,
        registry()};
    AxRwInt myRoundsPerMinute{
        {"rounds-per-minute", "rounds/min", "Cyclic rate of fire within a burst.", axNotNegative}, 500, registry()};
    AxRwReal myExtraTimeBetweenBursts{{"extra-time-between-bursts", "s",
                                       "Pause after a burst, on top of what the rate of fire demands.", axNotNegative},
                                      registry()};
    AxRwBoolean myStartWithTracers{{"start-with-tracers", "", "Whether the gun fires tracers from the start."},
                                   registry()};
    AxRwOffsetVector myMuzzleOffset{{"muzzle-offset", "m", "Place of the muzzle in the body frame."}, registry()};
    AxRwBoolean myVelocityAffectsHitChance{
        {"velocity-affects-hit-chance", "", "Whether movement of gun and target lowers the chance of a hit."},
        registry()};
    AxReaderWriterFile myHitProbabilityFile{
        {"hit-probability-file", "", "File from which the chances of a hit are read instead of inline."}, registry()};
    AxRangeProbabilityTable myHitProbabilityTable{
        {"hit-probability-table", "", "Chance of a hit by range to the target."}, registry()};
    AxRwString myRangeName{{"range-name", "", "Name under which the gun's range is shown."}, registry()};
    AxRwBoolean myDetonateOnMiss{
        {"detonate-on-miss", "", "Whether a round that misses still detonates where it comes down."}, true, registry()};
    AxRwInt myRoundsPerDetonation{
        {"rounds-per-detonation", "", "Rounds of a burst that one detonation stands for.", axNotNegative},
        100,
        registry()};
    AxRwReal myBurstCep{{"burst-cep", "",
                         "Radius around the aim point with half of the rounds, as a fraction of range.", axNotNegative},
                        0.005,
                        registry()};
};
