#pragma once

#include "AxRwVector.h"
#include "AxSystemParameterDataOf.h"

/// Declares a vector.
class ZEDOBJPARAM_API AxSystemVectorParameterData
    : public AxSystemParameterDataOf<AxSystemVectorParameterData, "AxSystemVectorParameterData",
                                     "vector-parameter-data", AxRwVector>
{
public:
    using AxSystemParameterDataOf::AxSystemParameterDataOf;
    AxSystemVectorParameterData(AxSymbolString name, AxSystemVectorParameterData const& other,
                                AxReaderWriterRegistry* registry);
    AxSystemVectorParameterData(AxSystemVectorParameterData const& other);
    ~AxSystemVectorParameterData() override;
    AxSystemVectorParameterData& operator=(AxSystemVectorParameterData const& other);

    AxString const& relativeTo() const { return myRelativeTo.value(); }
    void setRelativeTo(AxString const& frame);

    bool operator==(AxSystemParameterData const& other) const override;

private:
    AxRwString myRelativeTo{{"relative-to", "", "The frame that the vector is given in."}, registry()};
};
