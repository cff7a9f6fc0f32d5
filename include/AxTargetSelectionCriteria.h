#pragma once

#include "AxRecordOf.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwSpatialFilterContainer.h"
#include "AxTargetPriorityList.h"

/// Which of the detected objects become targets, and how many.
class ZEDOBJPARAM_API AxTargetSelectionCriteria
    : public AxRecordOf<AxTargetSelectionCriteria, "AxTargetSelectionCriteria">
{
public:
    AxTargetSelectionCriteria(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxTargetSelectionCriteria(AxString const& name, AxReaderWriterRegistry* registry);
    AxTargetSelectionCriteria(char const* name, AxReaderWriterRegistry* registry);
    AxTargetSelectionCriteria(AxKeyword const& keyword, AxReaderWriterRegistry* registry);
    AxTargetSelectionCriteria(AxSymbolString name, AxTargetSelectionCriteria const& other,
                              AxReaderWriterRegistry* registry);
    AxTargetSelectionCriteria(AxTargetSelectionCriteria const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxTargetSelectionCriteria() override;
    AxTargetSelectionCriteria& operator=(AxTargetSelectionCriteria const& other);

    AxTargetPriorityList const& priorityList() const { return myTargetPriorities; }
    AxTargetPriorityList& priorityList() { return myTargetPriorities; }
    int maxTargets() const { return myMaxTargets.value(); }
    void setMaxTargets(int number);
    AxRwSpatialFilterContainer const& targetRegion() const { return myTargetRegion; }
    AxRwSpatialFilterContainer& targetRegion() { return myTargetRegion; }
    bool fireWithSpotReportOnly() const { return myFireWithSpotReportOnly.value(); }
    void setFireWithSpotReportOnly(bool only);

private:
    void markDefaults();

    AxTargetPriorityList myTargetPriorities{{"target-priorities", "", "Priorities by object type."}, registry()};
    AxRwInt myMaxTargets{{"max-targets", "", "Targets kept at a time; a negative number: no limit."}, -1, registry()};
    AxRwSpatialFilterContainer myTargetRegion{
        {"target-region", "", "Where a target must be, in body axes; empty: anywhere."}, registry()};
    AxRwBoolean myFireWithSpotReportOnly{
        {"fire-with-spot-report-only", "", "Whether a spot report alone is enough to fire."}, false, registry()};
};
