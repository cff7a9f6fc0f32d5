#pragma once

#include "AxSoilList.h"
#include "AxSystemMetaDataEntryOf.h"

/// How the ground slows an object that moves by this system.
class ZEDOBJPARAM_API AxSoilFactorsMetaDataEntry
    : public AxSystemMetaDataEntryOf<AxSoilFactorsMetaDataEntry, "AxSoilFactorsMetaDataEntry", "soil-factors">
{
public:
    AxSoilFactorsMetaDataEntry(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSoilFactorsMetaDataEntry(AxSymbolString name, AxSoilFactorsMetaDataEntry const& other,
                               AxReaderWriterRegistry* registry);
    AxSoilFactorsMetaDataEntry(AxSoilFactorsMetaDataEntry const& other);
    ~AxSoilFactorsMetaDataEntry() override;

    AxSoilFactorsMetaDataEntry& operator=(AxSoilFactorsMetaDataEntry const& other);

    AxSoilList const& soilFactors() const { return mySoilList; }
    AxSoilList& soilFactors() { return mySoilList; }

    bool compare(AxSystemMetaDataEntry const& other) const override;

private:
    AxSoilList mySoilList{{"soil-list", "", "Factors of speed and acceleration by kind of soil."}, registry()};
};
