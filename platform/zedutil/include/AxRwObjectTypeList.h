#pragma once

#include "AxRwSequence.h"

#include <vector>

/// Object types or patterns, `(keyword (1 1 1 225 -1 -1 -1 -1) (...))`.
class ZEDOBJPARAM_API AxRwObjectTypeList : public AxRwSequence<std::vector<AxObjectType>>
{
public:
    using AxRwSequence::AxRwSequence;
    AxRwObjectTypeList(AxRwObjectTypeList const&) = default;
    ~AxRwObjectTypeList() override;
    AxRwObjectTypeList& operator=(AxRwObjectTypeList const&) = default;
    using AxRwSequence::operator=;

    /// Whether `type` fits one of the patterns; an empty list accepts every type.
    bool accepts(AxObjectType const& type) const;

    char const* readerWriterType() const override;
};
