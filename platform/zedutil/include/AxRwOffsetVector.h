#pragma once

#include "AxRwVector.h"

/// A vector in the body frame (metres; x forward, y right, z down).
class ZEDOBJPARAM_API AxRwOffsetVector : public AxRwVector
{
public:
    using AxRwVector::AxRwVector;
    AxRwOffsetVector(AxRwOffsetVector const&) = default;
    AxRwOffsetVector(AxRwOffsetVector const& other, AxReaderWriterRegistry* registry) : AxRwVector(other, registry) {}
    ~AxRwOffsetVector() override;

    AxRwOffsetVector& operator=(AxRwOffsetVector const&) = default;
    using AxRwVector::operator=;

    char const* readerWriterType() const override;
    char const* xmlType() const override;
};
