#pragma once

#include "AxRwAttributeList.h"

/// Named texts, `(keyword ("mount" "roof") ...)`.
class ZEDOBJPARAM_API AxRwStringAttributeList : public AxRwAttributeList<AxString>
{
public:
    using AxRwAttributeList::AxRwAttributeList;
    AxRwStringAttributeList(AxRwStringAttributeList const&) = default;
    ~AxRwStringAttributeList() override;
    AxRwStringAttributeList& operator=(AxRwStringAttributeList const&) = default;
    using AxRwAttributeList::operator=;

    char const* readerWriterType() const override;
};
