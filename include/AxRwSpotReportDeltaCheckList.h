#pragma once

#include "AxRwSpotReportDeltaCheck.h"
#include "AxRwTemplatedListPtr.h"

/// Checks by object type, in file order: general patterns are written first.
class ZEDOBJPARAM_API AxRwSpotReportDeltaCheckList : public AxRwTemplatedListPtr<AxRwSpotReportDeltaCheck, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    AxRwSpotReportDeltaCheckList(AxRwSpotReportDeltaCheckList const&) = default;
    ~AxRwSpotReportDeltaCheckList() override;
    AxRwSpotReportDeltaCheckList& operator=(AxRwSpotReportDeltaCheckList const&) = default;

    /// That of the first check for exactly this type, otherwise of the last whose type is a pattern that it fits. 0.0
    /// when there is none, which `found`, unless null, tells apart.
    virtual double delta(AxObjectType const& type, bool* found = nullptr) const;

    char const* readerWriterType() const override;
};
