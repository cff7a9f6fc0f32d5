#pragma once

#include "AxRwSequence.h"

#include <vector>

/// Any number of reals, `(keyword 1.0 2.0)`.
class ZEDOBJPARAM_API AxNLengthRealVector : public AxRwSequence<std::vector<double>>
{
public:
    using AxRwSequence::AxRwSequence;
    AxNLengthRealVector(AxNLengthRealVector const&) = default;
    ~AxNLengthRealVector() override;
    AxNLengthRealVector& operator=(AxNLengthRealVector const&) = default;
    using AxRwSequence::operator=;

    std::vector<double> const& values() const { return value(); }

    char const* readerWriterType() const override;
};
