#pragma once

#include "AxPrbRangeDeterminant.h"
#include "AxRecord.h"
#include "AxRwReal.h"

/// The damage that a munition does at angles of incidence up to one angle, by range, the distance by which it misses.
class ZEDOBJPARAM_API AxDmgAngleOfIncidenceTable : public AxRecord
{
public:
    using AxRecord::AxRecord;
    AxDmgAngleOfIncidenceTable(AxDmgAngleOfIncidenceTable const&) = delete;
    ~AxDmgAngleOfIncidenceTable() override;
    AxDmgAngleOfIncidenceTable& operator=(AxDmgAngleOfIncidenceTable const& other);

    /// Degrees; compared as given.
    double angleOfIncidence() const { return myAngle.value(); }
    void setAngleOfIncidence(double angle) { assignSpecified(myAngle, angle); }

    virtual AxPrbRangeDeterminant const& determinant() const = 0;
    virtual AxPrbRangeDeterminant& determinant() = 0;
    /// Null when there is no memory for it.
    virtual AxDmgAngleOfIncidenceTable* clone(AxReaderWriterRegistry* registry) const = 0;

    bool getProbabilities(double range, AxPrbRangeTableEntry* out) const
    {
        return determinant().getProbabilities(range, out);
    }
    /// The largest range covered, metres.
    double getMaximumDamageRadius() const { return determinant().getMaximumDamageRadius(); }

    /// What the elements of a surface entry are called in text.
    static AxSymbolString elementWord();

private:
    AxRwReal myAngle{{"angle", "deg", "Largest angle of incidence that this table is for.", {0.0, 180.0}}, registry()};
};
