#pragma once

#include "AxRwSequence.h"

#include <list>

/// Texts in order, `(keyword "a" "b")`.
class ZEDOBJPARAM_API AxRwStringList : public AxRwSequence<std::list<AxString>>
{
public:
    using AxRwSequence::AxRwSequence;
    AxRwStringList(AxRwStringList const&) = default;
    ~AxRwStringList() override;
    AxRwStringList& operator=(AxRwStringList const&) = default;
    using AxRwSequence::operator=;

    char const* readerWriterType() const override;
};
