#pragma once

#include "AxSystemRealParameterData.h"

/// Declares the sensitivity of a sensor: a real parameter under another type name, and equal to one.
class ZEDOBJPARAM_API AxSystemSensitivityParameterData : public AxSystemRealParameterData
{
public:
    using AxSystemRealParameterData::AxSystemRealParameterData;
    AxSystemSensitivityParameterData(AxSystemSensitivityParameterData const&) = default;
    ~AxSystemSensitivityParameterData() override;
    AxSystemSensitivityParameterData& operator=(AxSystemSensitivityParameterData const&) = default;

    AxString parameterType() const override;
    AxSystemParameterData* clone() const override;
    char const* readerWriterType() const override;
    char const* xmlType() const override;
    static AxSystemParameterData* create(AxString const& name);
};
