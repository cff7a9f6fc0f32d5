#pragma once

#include "AxRwString.h"
#include "AxSystemParameterDataOf.h"

/// Declares a text.
class ZEDOBJPARAM_API AxSystemStringParameterData
    : public AxSystemParameterDataOf<AxSystemStringParameterData, "AxSystemStringParameterData",
                                     "string-parameter-data", AxRwString>
{
public:
    using AxSystemParameterDataOf::AxSystemParameterDataOf;
    ~AxSystemStringParameterData() override;
};
