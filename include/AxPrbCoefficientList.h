#pragma once

#include "AxPrbProbabilityCoefficients.h"
#include "AxPrbRangeTableEntry.h"
#include "AxRwTemplatedListPtr.h"

/// Outcomes as polynomials in range, in file order.
class ZEDOBJPARAM_API AxPrbCoefficientList : public AxRwTemplatedListPtr<AxPrbProbabilityCoefficients, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    AxPrbCoefficientList(AxPrbCoefficientList const&) = default;
    ~AxPrbCoefficientList() override;
    AxPrbCoefficientList& operator=(AxPrbCoefficientList const&) = default;

    /// Fills `out` with the probability of every outcome at `range`. False, and a warning, when `out` is null.
    bool getProbabilities(double range, AxPrbRangeTableEntry* out) const;
    /// The farthest that any of the polynomials reaches, 0.0 when none reaches farther.
    double maxRangeValue() const;

    using AxRwTemplatedListPtr::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;
};
