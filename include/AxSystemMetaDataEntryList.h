#pragma once

#include "AxRwMultiTypeListTemplate.h"
#include "AxSystemMetaDataEntry.h"

/// The meta-data entries of a component system, each headed in text by its kind. Owns them.
class ZEDOBJPARAM_API AxSystemMetaDataEntryList : public AxRwMultiTypeListTemplate<AxSystemMetaDataEntry>
{
public:
    using AxRwMultiTypeListTemplate::AxRwMultiTypeListTemplate;
    AxSystemMetaDataEntryList(AxSystemMetaDataEntryList const&) = default;
    ~AxSystemMetaDataEntryList() override;
    AxSystemMetaDataEntryList& operator=(AxSystemMetaDataEntryList const&) = default;

    char const* readerWriterType() const override;
};
