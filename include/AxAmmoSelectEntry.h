#pragma once

#include "AxRecordOf.h"
#include "AxRwEntityType.h"
#include "AxSimMunitionList.h"

/// The munitions that may be used against one object type or pattern.
class ZEDOBJPARAM_API AxAmmoSelectEntry : public AxRecordOf<AxAmmoSelectEntry, "AxAmmoSelectEntry">
{
public:
    using AxRecordOf::AxRecordOf;
    AxAmmoSelectEntry();
    AxAmmoSelectEntry(AxSymbolString name, AxAmmoSelectEntry const& other, AxReaderWriterRegistry* registry);
    AxAmmoSelectEntry(AxAmmoSelectEntry const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxAmmoSelectEntry() override;
    AxAmmoSelectEntry& operator=(AxAmmoSelectEntry const& other);

    AxEntityType const& targetType() const { return myTargetType.value(); }
    void setTargetType(AxEntityType const& type);
    AxSimMunitionList const& simMunitionList() const { return myAmmo; }
    AxSimMunitionList& simMunitionList() { return myAmmo; }
    void setSimMunitionList(AxSimMunitionList const& munitions);

    /// The type that a table look-up goes by.
    AxEntityType const& entityType() const { return targetType(); }

private:
    AxRwEntityType myTargetType{{"target-type", "", "The target's object type, or a pattern."}, registry()};
    AxSimMunitionList myAmmo{{"ammo", "", "Munitions usable against it, the preferred first."}, registry()};
};
