#pragma once

#include "AxPrbRangeTableEntry.h"

/// Answers, for a range, the probability of each outcome. Its kind is told, in text, by the head of its first item.
class ZEDOBJPARAM_API AxPrbRangeDeterminant : public AxReaderWriter
{
public:
    using AxReaderWriter::AxReaderWriter;
    AxPrbRangeDeterminant(AxPrbRangeDeterminant const&) = delete;
    ~AxPrbRangeDeterminant() override;
    AxPrbRangeDeterminant& operator=(AxPrbRangeDeterminant const& other);

    /// Replaces the outcomes in `out`, which may be null; false when the range is beyond what is known.
    virtual bool getProbabilities(double range, AxPrbRangeTableEntry* out) const = 0;
    /// The largest range covered.
    virtual double getMaximumDamageRadius() const = 0;

    void postGetSelf() override;
};
