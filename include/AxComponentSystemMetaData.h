#pragma once

#include "AxRecordOf.h"
#include "AxRwNLengthStringVector.h"
#include "AxRwString.h"
#include "AxRwStringAttributeList.h"
#include "AxSystemMetaDataEntryList.h"
#include "AxSystemParameterDataList.h"

#include <map>

/// What is to be known of a component system without building it: its name, where it may be used, the parameters it
/// declares and how it is wired.
class ZEDOBJPARAM_API AxComponentSystemMetaData
    : public AxRecordOf<AxComponentSystemMetaData, "AxComponentSystemMetaData">
{
public:
    using AxRecordOf::AxRecordOf;
    AxComponentSystemMetaData(AxSymbolString name, AxComponentSystemMetaData const& other,
                              AxReaderWriterRegistry* registry);
    AxComponentSystemMetaData(AxComponentSystemMetaData const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxComponentSystemMetaData() override;
    AxComponentSystemMetaData& operator=(AxComponentSystemMetaData const& other);

    AxString const& systemName() const { return mySystemName.value(); }
    void setSystemName(AxString const& name);
    AxString const& systemDescription() const { return mySystemDescription.value(); }
    void setSystemDescription(AxString const& description);
    AxRwNLengthStringVector const& allowedStateRepositoryTypes() const { return myAllowedStateRepositoryTypes; }
    AxRwNLengthStringVector& allowedStateRepositoryTypes() { return myAllowedStateRepositoryTypes; }
    AxRwNLengthStringVector const& systemCategories() const { return mySystemCategories; }
    AxRwNLengthStringVector& systemCategories() { return mySystemCategories; }
    AxSystemParameterDataList const& paramterDataList() const { return myParameterDataList; }
    AxSystemParameterDataList& paramterDataList() { return myParameterDataList; }
    AxSystemMetaDataEntryList const& metaDataEntryList() const { return myMetaDataEntryList; }
    AxSystemMetaDataEntryList& metaDataEntryList() { return myMetaDataEntryList; }
    /// Values by name; a copy.
    std::map<AxString, AxString> attributeList() const;

    /// True when the type is listed, or the word "all" is; never for an empty list.
    bool allowedForStateRepositoryType(AxString const& type) const;
    /// True when exactly this category is listed.
    bool inSystemCategory(AxString const& category) const;
    /// The first entry of that type, null when there is none.
    AxSystemMetaDataEntry* lookupMetaDataEntry(AxString const& entryType) const;

private:
    AxRwString mySystemName{{"system-name", "", "What the system is called."}, registry()};
    AxRwString mySystemDescription{{"system-description", "", "What the system does, in a sentence."}, registry()};
    AxRwNLengthStringVector myAllowedStateRepositoryTypes{
        {"allowed-state-repository-types", "", "Kinds of objects it may be used in; \"all\": any; empty: none."},
        registry()};
    AxRwNLengthStringVector mySystemCategories{{"system-categories", "", "What it is, in words such as \"weapon\"."},
                                               registry()};
    AxSystemParameterDataList myParameterDataList{{"parameter-data-list", "", "The parameters it declares."},
                                                  registry()};
    AxSystemMetaDataEntryList myMetaDataEntryList{{"meta-data-entry-list", "", "How it is wired to the object."},
                                                  registry()};
    AxRwStringAttributeList mySystemAttributes{{"system-attributes", "", "Free names with texts."}, registry()};
};
