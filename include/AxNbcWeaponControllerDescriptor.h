#pragma once

#include "AxDescriptorOf.h"
#include "AxRwInt.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxScriptEnableControllerDescriptor.h"

/// A controller that delivers nuclear, biological or chemical weapons; its scripts carry out the attack.
class ZEDOBJPARAM_API AxNbcWeaponControllerDescriptor
    : public AxDescriptorOf<AxNbcWeaponControllerDescriptor, AxScriptEnableControllerDescriptor,
                            "nbc-weapon-controller-descriptor">
{
public:
    AxNbcWeaponControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxNbcWeaponControllerDescriptor(AxNbcWeaponControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxNbcWeaponControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxNbcWeaponControllerDescriptor() override;

    virtual AxString const& nbcType() const { return myNbcType.value(); }
    virtual void setNbcType(AxString const& type) { assignSpecified(myNbcType, type); }
    virtual double range() const { return myRange; }
    virtual void setRange(double range) { assignSpecified(myRange, range); }
    virtual double radius() const { return myRadius; }
    virtual void setRadius(double radius) { assignSpecified(myRadius, radius); }
    virtual int ammunitionPerAttack() const { return myAmmunitionPerAttack; }
    virtual void setAmmunitionPerAttack(int ammunition) { assignSpecified(myAmmunitionPerAttack, ammunition); }

private:
    AxRwString myNbcType{{"nbc-type", "", "Kind of weapon: \"nuclear\", \"biological\" or \"chemical\"."}, registry()};
    AxRwReal myRange{{"range", "m", "Farthest place that can be attacked.", axNotNegative}, 15000.0, registry()};
    AxRwReal myRadius{
        {"radius", "m", "Radius of the contaminated area of one attack.", axNotNegative}, 500.0, registry()};
    AxRwInt myAmmunitionPerAttack{
        {"ammunition-per-attack", "", "Rounds that one attack uses up.", axNotNegative}, 1, registry()};
};
