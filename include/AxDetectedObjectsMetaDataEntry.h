#pragma once

#include "AxRwString.h"
#include "AxSystemMetaDataEntryOf.h"

/// Through which port the system hands out what it detected.
class ZEDOBJPARAM_API AxDetectedObjectsMetaDataEntry
    : public AxSystemMetaDataEntryOf<AxDetectedObjectsMetaDataEntry, "AxDetectedObjectsMetaDataEntry",
                                     "detected-objects-output">
{
public:
    AxDetectedObjectsMetaDataEntry(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxDetectedObjectsMetaDataEntry(AxSymbolString name, AxDetectedObjectsMetaDataEntry const& other,
                                   AxReaderWriterRegistry* registry);
    AxDetectedObjectsMetaDataEntry(AxDetectedObjectsMetaDataEntry const& other);
    ~AxDetectedObjectsMetaDataEntry() override;

    AxDetectedObjectsMetaDataEntry& operator=(AxDetectedObjectsMetaDataEntry const& other);

    AxString const& detectedObjectsOutputPortName() const { return myPortName.value(); }
    void setDetectedObjectsOutputPortName(AxString const& name);

    bool compare(AxSystemMetaDataEntry const& other) const override;

private:
    AxRwString myPortName{{"detected-objects-output-port-name", "", "Port that hands out the detected objects."},
                          "detected-objects",
                          registry()};
};
