#pragma once

#include "AxBaseWeaponControllerDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxNLengthRealVector.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwStringList.h"

/// A controller that carries out fire missions with an indirect-fire weapon: rounds per mission, ammunition when none
/// is ordered, and the ranges it reaches.
class ZEDOBJPARAM_API AxIndirectFireControllerDescriptor
    : public AxDescriptorOf<AxIndirectFireControllerDescriptor, AxBaseWeaponControllerDescriptor,
                            "indirect-fire-controller-descriptor">
{
public:
    AxIndirectFireControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxIndirectFireControllerDescriptor(AxIndirectFireControllerDescriptor const& other,
                                       AxReaderWriterRegistry* registry)
        : AxIndirectFireControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxIndirectFireControllerDescriptor() override;

    virtual AxRwStringList const& defaultAmmoList() const { return myDefaultAmmoList; }
    virtual AxRwStringList& defaultAmmoList() { return myDefaultAmmoList; }
    virtual int numRoundsPerMission() const { return myNumRoundsPerMission; }
    virtual void setNumRoundsPerMission(int rounds) { assignSpecified(myNumRoundsPerMission, rounds); }
    virtual double minRange() const { return myMinRange; }
    virtual void setMinRange(double range) { assignSpecified(myMinRange, range); }
    virtual AxNLengthRealVector const& maxRangeList() const { return myMaxRangeList; }
    virtual AxNLengthRealVector& maxRangeList() { return myMaxRangeList; }
    virtual AxString const& rangeName() const { return myRangeName.value(); }
    virtual void setRangeName(AxString const& name) { assignSpecified(myRangeName, name); }
    virtual AxString const& weaponName() const { return myWeaponName.value(); }
    virtual void setWeaponName(AxString const& name) { assignSpecified(myWeaponName, name); }
    virtual bool capableOfDirectAlignment() const { return myCapableOfDirectAlignment; }
    virtual void setCapableOfDirectAlignment(bool capable) { assignSpecified(myCapableOfDirectAlignment, capable); }

private:
    AxRwStringList myDefaultAmmoList{
        {"default-ammo-list", "", "Munitions to use, in order of preference, when a mission names none."}, registry()};
    AxRwInt myNumRoundsPerMission{
        {"num-rounds-per-mission", "", "Rounds fired when a mission does not tell their number.", axNotNegative},
        6,
        registry()};
    AxRwReal myMinRange{{"min-range", "m", "Nearest place that can be fired at.", axNotNegative}, registry()};
    AxNLengthRealVector myMaxRangeList{{"max-range-list", "m", "Farthest reach of each charge."}, registry()};
    AxRwString myRangeName{{"range-name", "", "Name under which the weapon's range is shown."}, registry()};
    AxRwString myWeaponName{{"weapon-name", "", "Name by which fire missions call for the weapon."}, registry()};
    AxRwBoolean myCapableOfDirectAlignment{
        {"capable-of-direct-alignment", "", "Whether the weapon is also laid directly on targets in sight."},
        registry()};
};
