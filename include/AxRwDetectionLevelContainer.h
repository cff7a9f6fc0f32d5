#pragma once

#include "AxDetectionLevel.h"
#include "AxRangeProbabilityTable.h"
#include "AxReaderWriterFile.h"
#include "AxRecordOf.h"
#include "AxRwRealAttributeList.h"

/// How a sensor comes from what it receives to a detection level: by chance, from a table of probabilities by type and
/// range whose outcomes are level words, and by the strength of the signal.
class ZEDOBJPARAM_API AxRwDetectionLevelContainer
    : public AxRecordOf<AxRwDetectionLevelContainer, "AxRwDetectionLevelContainer">
{
public:
    AxRwDetectionLevelContainer(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxRwDetectionLevelContainer(AxKeyword const& keyword, AxReaderWriterRegistry* registry);
    ~AxRwDetectionLevelContainer() override;

    virtual AxFilename const& detectionTableFile() const { return myDetectionTableFile.filename(); }
    virtual void setDetectionTableFile(AxFilename const& file) { assignSpecified(myDetectionTableFile, file); }
    virtual AxRangeProbabilityTable& detectionTable() { return myDetectionTable; }
    virtual AxRangeProbabilityTable const& detectionTable() const { return myDetectionTable; }
    /// Least signal by level word; other words take no part.
    virtual AxRwRealAttributeList& levelThresholds() { return myLevelThresholds; }
    virtual AxRwRealAttributeList const& levelThresholds() const { return myLevelThresholds; }

    /// The highest level whose threshold is at most `signal`. Without thresholds, Identified for a signal above 0.
    virtual AxDetectionLevel level(double signal) const;

private:
    AxReaderWriterFile myDetectionTableFile{
        {"detection-table-file", "", "File from which the table is read instead of inline."}, registry()};
    AxRangeProbabilityTable myDetectionTable{{"detection-table", "", "Probabilities of the levels by type and range."},
                                             registry()};
    AxRwRealAttributeList myLevelThresholds{
        {"level-thresholds", "", "Least signal of each level; none: any signal identifies."}, registry()};
};
