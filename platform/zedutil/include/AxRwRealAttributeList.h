#pragma once

#include "AxRwAttributeList.h"

/// Named reals, `(keyword ("mud" 0.4) ...)`.
class ZEDOBJPARAM_API AxRwRealAttributeList : public AxRwAttributeList<double>
{
public:
    using AxRwAttributeList::AxRwAttributeList;
    AxRwRealAttributeList(AxRwRealAttributeList const&) = default;
    ~AxRwRealAttributeList() override;
    AxRwRealAttributeList& operator=(AxRwRealAttributeList const&) = default;
    using AxRwAttributeList::operator=;

    char const* readerWriterType() const override;
};
