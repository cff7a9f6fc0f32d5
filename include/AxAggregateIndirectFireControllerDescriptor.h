#pragma once

#include "AxDescriptorOf.h"
#include "AxRwInt.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxScriptEnableControllerDescriptor.h"

/// A controller for the indirect fire of a unit simulated as a whole. Each attack covers an area and takes strength
/// points from the units in it.
class ZEDOBJPARAM_API AxAggregateIndirectFireControllerDescriptor
    : public AxDescriptorOf<AxAggregateIndirectFireControllerDescriptor, AxScriptEnableControllerDescriptor,
                            "aggregate-indirect-fire-controller-descriptor">
{
public:
    AxAggregateIndirectFireControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAggregateIndirectFireControllerDescriptor(AxAggregateIndirectFireControllerDescriptor const& other,
                                                AxReaderWriterRegistry* registry)
        : AxAggregateIndirectFireControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAggregateIndirectFireControllerDescriptor() override;

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
    virtual int strengthPerAttack() const { return myStrengthPerAttack; }
    virtual void setStrengthPerAttack(int strength) { assignSpecified(myStrengthPerAttack, strength); }
    virtual double secondsPerAttack() const { return mySecondsPerAttack; }
    virtual void setSecondsPerAttack(double seconds) { assignSpecified(mySecondsPerAttack, seconds); }
    virtual int ammunitionPerAttack() const { return myAmmunitionPerAttack; }
    virtual void setAmmunitionPerAttack(int ammunition) { assignSpecified(myAmmunitionPerAttack, ammunition); }
    virtual AxString const& damageCategory() const { return myDamageCategory.value(); }
    virtual void setDamageCategory(AxString const& category) { assignSpecified(myDamageCategory, category); }
    virtual AxString const& availablePostures() const { return myAvailablePostures.value(); }
    virtual void setAvailablePostures(AxString const& postures) { assignSpecified(myAvailablePostures, postures); }

private:
    AxRwString myWeaponName{{"weapon-name", "", "Name by which tasks call for the weapon."}, registry()};
    AxRwReal myRange{{"range", "m", "Farthest place that can be attacked.", axNotNegative}, 15000.0, registry()};
    AxRwReal myRadius{{"radius", "m", "Radius of effect of one attack.", axNotNegative}, 100.0, registry()};
    AxRwReal myMaxSheafRadius{
        {"max-sheaf-radius", "m", "Largest radius over which the impact points may be spread.", axNotNegative},
        200.0,
        registry()};
    AxRwReal myHitFactor{
        {"hit-factor", "", "Multiplier on the strength that an attack takes away.", axNotNegative}, 1.0, registry()};
    AxRwInt myStrengthPerAttack{
        {"strength-per-attack", "", "Strength points that one attack takes from a unit in its area.", axNotNegative},
        1,
        registry()};
    AxRwReal mySecondsPerAttack{
        {"seconds-per-attack", "s", "Time from one attack to the next.", axNotNegative}, 60.0, registry()};
    AxRwInt myAmmunitionPerAttack{
        {"ammunition-per-attack", "", "Rounds that one attack uses up.", axNotNegative}, 1, registry()};
    AxRwString myDamageCategory{
        {"damage-category", "", "Category of damage by which the attacked unit weighs the attack."}, registry()};
    AxRwString myAvailablePostures{
        {"available-postures", "", "Postures of the unit in which it may fire; empty: every posture."}, registry()};
};
