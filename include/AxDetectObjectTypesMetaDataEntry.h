#pragma once

#include "AxRwString.h"
#include "AxSystemMetaDataEntryOf.h"

/// Through which port the system is told the object types to detect.
class ZEDOBJPARAM_API AxDetectObjectTypesMetaDataEntry
    : public AxSystemMetaDataEntryOf<AxDetectObjectTypesMetaDataEntry, "AxDetectObjectTypesMetaDataEntry",
                                     "detect-object-types-input">
{
public:
    AxDetectObjectTypesMetaDataEntry(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxDetectObjectTypesMetaDataEntry(AxSymbolString name, AxDetectObjectTypesMetaDataEntry const& other,
                                     AxReaderWriterRegistry* registry);
    AxDetectObjectTypesMetaDataEntry(AxDetectObjectTypesMetaDataEntry const& other);
    ~AxDetectObjectTypesMetaDataEntry() override;

    AxDetectObjectTypesMetaDataEntry& operator=(AxDetectObjectTypesMetaDataEntry const& other);

    AxString const& detectObjectTypesInputPortName() const { return myPortName.value(); }
    void setDetectObjectTypesInputPortName(AxString const& name);

    bool compare(AxSystemMetaDataEntry const& other) const override;

private:
    AxRwString myPortName{{"detect-object-types-input-port-name", "", "Port that takes the object types to detect."},
                          "object-types-to-detect",
                          registry()};
};
