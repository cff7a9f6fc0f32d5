#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxScriptEnableControllerDescriptor.h"

/// A controller for bomb attacks by an air unit simulated as a whole. Radar jamming may spoil them.
class ZEDOBJPARAM_API AxAggregateReleaseBombControllerDescriptor
    : public AxDescriptorOf<AxAggregateReleaseBombControllerDescriptor, AxScriptEnableControllerDescriptor,
                            "aggregate-release-bomb-controller-descriptor">
{
public:
    AxAggregateReleaseBombControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAggregateReleaseBombControllerDescriptor(AxAggregateReleaseBombControllerDescriptor const& other,
                                               AxReaderWriterRegistry* registry)
        : AxAggregateReleaseBombControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAggregateReleaseBombControllerDescriptor() override;

    virtual AxString const& weaponName() const { return myWeaponName.value(); }
    virtual void setWeaponName(AxString const& name) { assignSpecified(myWeaponName, name); }
    virtual double range() const { return myRange; }
    virtual void setRange(double range) { assignSpecified(myRange, range); }
    virtual double radius() const { return myRadius; }
    virtual void setRadius(double radius) { assignSpecified(myRadius, radius); }
    virtual double maxSheafRadius() const { return myMaxSheafRadius; }
    virtual void setMaxSheafRadius(double radius) { assignSpecified(myMaxSheafRadius, radius); }
    virtual double hitFactor() const { return myHitFactor; }
    virtual void setHitFactor(double factor) { assignSpecified(myHitFactor, factor); }
    virtual int strengthPerBomb() const { return myStrengthPerBomb; }
    virtual void setStrengthPerBomb(int strength) { assignSpecified(myStrengthPerBomb, strength); }
    virtual double secondsPerAttack() const { return mySecondsPerAttack; }
    virtual void setSecondsPerAttack(double seconds) { assignSpecified(mySecondsPerAttack, seconds); }
    virtual int bombsPerAttack() const { return myBombsPerAttack; }
    virtual void setBombsPerAttack(int bombs) { assignSpecified(myBombsPerAttack, bombs); }
    virtual AxString const& damageCategory() const { return myDamageCategory.value(); }
    virtual void setDamageCategory(AxString const& category) { assignSpecified(myDamageCategory, category); }
    virtual AxString const& availablePostures() const { return myAvailablePostures.value(); }
    virtual void setAvailablePostures(AxString const& postures) { assignSpecified(myAvailablePostures, postures); }
    virtual bool canBeRadarJammed() const { return myCanBeRadarJammed; }
    virtual void setCanBeRadarJammed(bool can) { assignSpecified(myCanBeRadarJammed, can); }
    virtual double jammingDefenseFactor() const { return myJammingDefenseFactor; }
    virtual void setJammingDefenseFactor(double factor) { assignSpecified(myJammingDefenseFactor, factor); }

private:
    AxRwString myWeaponName{{"weapon-name", "", "Name by which tasks call for the bombs."}, registry()};
    AxRwReal myRange{{"range", "m", "Farthest place that can be attacked.", axNotNegative}, 5000.0, registry()};
    AxRwReal myRadius{{"radius", "m", "Radius of effect of one attack.", axNotNegative}, 100.0, registry()};
    AxRwReal myMaxSheafRadius{
        {"max-sheaf-radius", "m", "Largest radius over which the impact points may be spread.", axNotNegative},
        200.0,
        registry()};
    AxRwReal myHitFactor{
        {"hit-factor", "", "Multiplier on the strength that a bomb takes away.", axNotNegative}, 1.0, registry()};
    AxRwInt myStrengthPerBomb{
        {"strength-per-bomb", "", "Strength points that one bomb takes from a unit in its area.", axNotNegative},
        1,
        registry()};
    AxRwReal mySecondsPerAttack{
        {"seconds-per-attack", "s", "Time from one attack to the next.", axNotNegative}, 60.0, registry()};
    AxRwInt myBombsPerAttack{{"bombs-per-attack", "", "Bombs that one attack uses up.", axNotNegative}, 1, registry()};
    AxRwString myDamageCategory{
        {"damage-category", "", "Category of damage by which the attacked unit weighs the attack."}, registry()};
    AxRwString myAvailablePostures{
        {"available-postures", "", "Postures of the unit in which it may attack; empty: every posture."}, registry()};
    AxRwBoolean myCanBeRadarJammed{{"can-be-radar-jammed", "", "Whether jammers in reach weaken the attack."},
                                   registry()};
    AxRwReal myJammingDefenseFactor{{"jamming-defense-factor", "",
                                     "Factor of protection against jamming; 1: no special protection.", axNotNegative},
                                    1.0,
                                    registry()};
};
