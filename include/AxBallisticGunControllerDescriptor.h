#pragma once

#include "AxAmmoSelectTable.h"
#include "AxDescriptorOf.h"
#include "AxReaderWriterFile.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxTargetSelectionCriteria.h"

/// The gunner of a gun: picks a target and the ammunition against it, loads, and pulls the trigger. Tells loading
/// times, the ammunition table and how targets are chosen.
class ZEDOBJPARAM_API AxBallisticGunControllerDescriptor
    : public AxDescriptorOf<AxBallisticGunControllerDescriptor, AxComponentDescriptor, "ballistic-gun-ctlr-descriptor">
{
public:
    AxBallisticGunControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxBallisticGunControllerDescriptor(AxBallisticGunControllerDescriptor const& other,
                                       AxReaderWriterRegistry* registry)
        : AxBallisticGunControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxBallisticGunControllerDescriptor() override;

    virtual double loadAmmoTime() const { return myLoadAmmoTime; }
    virtual void setLoadAmmoTime(double time) { assignSpecified(myLoadAmmoTime, time); }
    virtual double unloadAmmoTime() const { return myUnloadAmmoTime; }
    virtual void setUnloadAmmoTime(double time) { assignSpecified(myUnloadAmmoTime, time); }
    virtual AxFilename const& ammoSelectTableFile() const { return myAmmoSelectTableFile.filename(); }
    virtual void setAmmoSelectTableFile(AxFilename const& file) { assignSpecified(myAmmoSelectTableFile, file); }
    virtual AxAmmoSelectTable const& ammoSelectTable() const { return myAmmoSelectTable; }
    virtual AxAmmoSelectTable& ammoSelectTable() { return myAmmoSelectTable; }
    virtual int roundsPerTriggerPull() const { return myRoundsPerTriggerPull; }
    virtual void setRoundsPerTriggerPull(int rounds) { assignSpecified(myRoundsPerTriggerPull, rounds); }
    virtual AxTargetSelectionCriteria const& targetingControl() const { return myTargetingControl; }
    virtual AxTargetSelectionCriteria& targetingControl() { return myTargetingControl; }
    virtual bool disabledBySuppression() const { return myDisabledBySuppression; }
    virtual void setDisabledBySuppression(bool disabled) { assignSpecified(myDisabledBySuppression, disabled); }
    virtual bool treatSelectedTargetAsTasked() const { return myTreatSelectedTargetAsTasked; }
    virtual void setTreatSelectedTargetAsTasked(bool treat) { assignSpecified(myTreatSelectedTargetAsTasked, treat); }
    virtual AxString const& requiredTokens() const { return myRequiredTokens.value(); }
    virtual void setRequiredTokens(AxString const& tokens) { assignSpecified(myRequiredTokens, tokens); }
    virtual int gunPriority() const { return myGunPriority; }
    virtual void setGunPriority(int priority) { assignSpecified(myGunPriority, priority); }

private:
    AxRwReal myLoadAmmoTime{
        {"load-ammo-time", "s", "Time to load a kind of ammunition.", axNotNegative}, 5.0, registry()};
    AxRwReal myUnloadAmmoTime{
        {"unload-ammo-time", "s", "Time to clear the gun before another kind is loaded.", axNotNegative},
        5.0,
        registry()};
    AxReaderWriterFile myAmmoSelectTableFile{
        {"ammo-select-table-file", "", "File from which the ammunition table is read instead of inline."}, registry()};
    AxAmmoSelectTable myAmmoSelectTable{{"ammo-select-table", "", "Ammunition that may be used, by type of target."},
                                        registry()};
    AxRwInt myRoundsPerTriggerPull{
        {"rounds-per-trigger-pull", "", "Rounds fired at one pull of the trigger.", axNotNegative}, 1, registry()};
    AxTargetSelectionCriteria myTargetingControl{
        {"targeting-control", "", "How targets are preferred, how many are kept, and where they are engaged."},
        registry()};
    AxRwBoolean myDisabledBySuppression{
        {"disabled-by-suppression", "", "Whether the gunner ceases fire while the object is suppressed."}, registry()};
    AxRwBoolean myTreatSelectedTargetAsTasked{
        {"treat-selected-target-as-tasked", "",
         "Whether a target of the gunner's own choice is engaged as if it were ordered."},
        registry()};
    AxRwString myRequiredTokens{
        {"required-tokens", "", "Tokens that the object must hold before the gun fires; empty: none."}, registry()};
    AxRwInt myGunPriority{{"gun-priority", "", "Rank among the object's guns when several could engage the target."},
                          registry()};
};
