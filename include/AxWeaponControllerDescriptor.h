#pragma once

#include "AxAmmoSelectTable.h"
#include "AxBaseWeaponControllerDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxReaderWriterFile.h"
#include "AxRwString.h"
#include "AxTargetSelectionCriteria.h"

/// A controller that fires a direct-fire weapon, such as an anti-tank or air-to-air missile, at targets it picks by
/// table and criteria.
class ZEDOBJPARAM_API AxWeaponControllerDescriptor
    : public AxDescriptorOf<AxWeaponControllerDescriptor, AxBaseWeaponControllerDescriptor,
                            "weapon-controller-descriptor">
{
public:
    AxWeaponControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxWeaponControllerDescriptor(AxWeaponControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxWeaponControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxWeaponControllerDescriptor() override;

    virtual AxFilename const& ammoSelectTableFile() const { return myAmmoSelectTableFile.filename(); }
    virtual void setAmmoSelectTableFile(AxFilename const& file) { assignSpecified(myAmmoSelectTableFile, file); }
    virtual AxAmmoSelectTable const& ammoSelectTable() const { return myAmmoSelectTable; }
    virtual AxAmmoSelectTable& ammoSelectTable() { return myAmmoSelectTable; }
    virtual AxString const& rangeName() const { return myRangeName.value(); }
    virtual void setRangeName(AxString const& name) { assignSpecified(myRangeName, name); }
    virtual AxTargetSelectionCriteria const& targetingControl() const { return myTargetingControl; }
    virtual AxTargetSelectionCriteria& targetingControl() { return myTargetingControl; }

private:
    AxReaderWriterFile myAmmoSelectTableFile{
        {"ammo-select-table-file", "", "File from which the ammunition table is read instead of inline."}, registry()};
    AxAmmoSelectTable myAmmoSelectTable{{"ammo-select-table", "", "Munitions that may be used, by type of target."},
                                        registry()};
    AxRwString myRangeName{{"range-name", "", "Name under which the weapon's range is shown."}, registry()};
    AxTargetSelectionCriteria myTargetingControl{
        {"targeting-control", "", "How targets are preferred, how many are kept, and where they are engaged."},
        registry()};
};
