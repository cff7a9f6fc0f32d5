#pragma once

#include "AxRwSequence.h"

#include <vector>

/// Any number of texts, `(keyword "a" "b")`.
class ZEDOBJPARAM_API AxRwNLengthStringVector : public AxRwSequence<std::vector<AxString>>
{
public:
    using AxRwSequence::AxRwSequence;
    AxRwNLengthStringVector(AxRwNLengthStringVector const&) = default;
    ~AxRwNLengthStringVector() override;
    AxRwNLengthStringVector& operator=(AxRwNLengthStringVector const&) = default;
    using AxRwSequence::operator=;

    char const* readerWriterType() const override;
};
