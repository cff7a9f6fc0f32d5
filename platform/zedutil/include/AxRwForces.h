#pragma once

#include "AxRwSequence.h"

#include <vector>

/// A set of forces, `(keyword 1 3)`, kept in ascending order.
class ZEDOBJPARAM_API AxRwForces : public AxRwSequence<std::vector<AxForceType>>
{
public:
    using AxRwSequence::AxRwSequence;
    AxRwForces(AxRwForces const&) = default;
    ~AxRwForces() override;
    AxRwForces& operator=(AxRwForces const&) = default;
    using AxRwSequence::operator=;

    char const* readerWriterType() const override;
};
