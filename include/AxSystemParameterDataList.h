#pragma once

#include "AxRwMultiTypeListTemplate.h"
#include "AxSystemParameterData.h"

/// The parameters that a component system declares, each headed in text by its kind. Owns them.
class ZEDOBJPARAM_API AxSystemParameterDataList : public AxRwMultiTypeListTemplate<AxSystemParameterData>
{
public:
    using AxRwMultiTypeListTemplate::AxRwMultiTypeListTemplate;
    AxSystemParameterDataList(AxSystemParameterDataList const&) = default;
    ~AxSystemParameterDataList() override;
    AxSystemParameterDataList& operator=(AxSystemParameterDataList const&) = default;

    char const* readerWriterType() const override;
};
