#pragma once

#include "AxPrbRangeDeterminant.h"
#include "AxRwEntityType.h"

/// An object type, which may be a pattern, and what determines the probabilities for objects of that type.
class ZEDOBJPARAM_API AxRangeProbEntry : public AxReaderWriter
{
public:
    using AxReaderWriter::AxReaderWriter;
    AxRangeProbEntry(AxRangeProbEntry const&) = delete;
    ~AxRangeProbEntry() override;
    AxRangeProbEntry& operator=(AxRangeProbEntry const& other);

    AxEntityType const& entityType() const { return myEntityType.value(); }
    void setEntityType(AxEntityType const& type);

    virtual AxPrbRangeDeterminant const& determinant() const = 0;
    virtual AxPrbRangeDeterminant& determinant() = 0;
    virtual AxRangeProbEntry* clone(AxReaderWriterRegistry* registry) const = 0;

    bool getProbabilities(double range, AxPrbRangeTableEntry* out) const
    {
        return determinant().getProbabilities(range, out);
    }

    /// What the elements of a table are called in text.
    static AxSymbolString elementWord();

private:
    AxRwEntityType myEntityType{{"entity-type", "", "The object type or pattern this element is for."}, registry()};
};
