#pragma once

#include "AxRwBoolean.h"
#include "AxSystemParameterDataOf.h"

/// Declares a truth value.
class ZEDOBJPARAM_API AxSystemBoolParameterData
    : public AxSystemParameterDataOf<AxSystemBoolParameterData, "AxSystemBoolParameterData", "bool-parameter-data",
                                     AxRwBoolean>
{
public:
    using AxSystemParameterDataOf::AxSystemParameterDataOf;
    ~AxSystemBoolParameterData() override;
};
