#pragma once

#include "AxRwReal.h"
#include "AxSystemParameterDataOf.h"

/// Declares a real number.
class ZEDOBJPARAM_API AxSystemRealParameterData
    : public AxSystemParameterDataOf<AxSystemRealParameterData, "AxSystemRealParameterData", "real-parameter-data",
                                     AxRwReal>
{
public:
    using AxSystemParameterDataOf::AxSystemParameterDataOf;
    ~AxSystemRealParameterData() override;
};
