#pragma once

#include "AxRwString.h"
#include "AxSystemMetaDataEntryOf.h"
#include "AxTargetSelectionCriteria.h"

/// Through which port the system gets its list of targets, and how those are chosen.
class ZEDOBJPARAM_API AxTargetSelectionMetaDataEntry
    : public AxSystemMetaDataEntryOf<AxTargetSelectionMetaDataEntry, "AxTargetSelectionMetaDataEntry",
                                     "target-selection">
{
public:
    AxTargetSelectionMetaDataEntry(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxTargetSelectionMetaDataEntry(AxSymbolString name, AxTargetSelectionMetaDataEntry const& other,
                                   AxReaderWriterRegistry* registry);
    AxTargetSelectionMetaDataEntry(AxTargetSelectionMetaDataEntry const& other);
    ~AxTargetSelectionMetaDataEntry() override;

    AxTargetSelectionMetaDataEntry& operator=(AxTargetSelectionMetaDataEntry const& other);

    AxTargetSelectionCriteria const& targetSelectionCriteria() const { return myTargetSelectionCriteria; }
    AxTargetSelectionCriteria& targetSelectionCriteria() { return myTargetSelectionCriteria; }
    AxString const& targetInputPortName() const { return myTargetInputPortName.value(); }
    void setTargetInputPortName(AxString const& name);

    bool compare(AxSystemMetaDataEntry const& other) const override;

private:
    AxTargetSelectionCriteria myTargetSelectionCriteria{
        {"target-selection-criteria", "", "How targets are chosen among what was detected."}, registry()};
    AxRwString myTargetInputPortName{
        {"target-input-port-name", "", "Port that takes the list of targets."}, "target-list", registry()};
};
