#pragma once

#include "AxRwTaitBryan.h"
#include "AxSystemParameterDataOf.h"

/// Declares an orientation.
class ZEDOBJPARAM_API AxSystemOrientationParameterData
    : public AxSystemParameterDataOf<AxSystemOrientationParameterData, "AxSystemOrientationParameterData",
                                     "tait-bryan-parameter-data", AxRwTaitBryan>
{
public:
    using AxSystemParameterDataOf::AxSystemParameterDataOf;
    ~AxSystemOrientationParameterData() override;
};
