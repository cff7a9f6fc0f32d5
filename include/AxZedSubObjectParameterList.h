#pragma once

#include "AxRwTemplatedListPtr.h"
#include "AxZedSubObjectParameterEntry.h"

/// Objects that are created with another one, owned, keyed by their roles.
class ZEDOBJPARAM_API AxZedSubObjectParameterList : public AxRwTemplatedListPtr<AxZedSubObjectParameterEntry, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    AxZedSubObjectParameterList(AxZedSubObjectParameterList const&) = default;
    ~AxZedSubObjectParameterList() override;
    AxZedSubObjectParameterList& operator=(AxZedSubObjectParameterList const&) = default;

    char const* readerWriterType() const override;
    char const* xmlType() const override;
};
