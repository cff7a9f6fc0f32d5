#pragma once

#include "AxRwInt.h"
#include "AxSystemParameterDataOf.h"

/// Declares a whole number.
class ZEDOBJPARAM_API AxSystemIntParameterData
    : public AxSystemParameterDataOf<AxSystemIntParameterData, "AxSystemIntParameterData", "int-parameter-data",
                                     AxRwInt>
{
public:
    using AxSystemParameterDataOf::AxSystemParameterDataOf;
    ~AxSystemIntParameterData() override;
};
