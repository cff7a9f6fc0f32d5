#pragma once

#include "AxFormationPosition.h"
#include "AxRwTemplatedListPtr.h"

/// How the subordinates of a unit are arranged around their leader.
class ZEDOBJPARAM_API AxFormation : public AxRecordOf<AxFormation, "AxFormation">
{
public:
    using PositionList = AxRwTemplatedListPtr<AxFormationPosition, 1>;

    using AxRecordOf::AxRecordOf;
    AxFormation(AxFormation const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxFormation() override;
    AxFormation& operator=(AxFormation const& other);

    /// What its entry in a formation table calls it; no part of the text and of equality.
    AxString const& formationType() const { return myFormationType; }
    void setFormationType(AxString const& type) { myFormationType = type; }
    virtual PositionList& positions() { return myPositions; }
    virtual PositionList const& positions() const { return myPositions; }
    virtual AxVector64 const& extraSpacing() const { return myExtraSpacing.value(); }
    virtual void setExtraSpacing(AxVector64 const& spacing) { assignSpecified(myExtraSpacing, spacing); }

    int numPositions() const { return myPositions.count(); }
    /// Place of a subordinate in the frame of the leader, metres; the first one has index 0, below that it is the
    /// leader's own. Beyond the listed positions each further subordinate stands one extra spacing from the one before.
    virtual AxVector64 offset(int index) const;

private:
    PositionList myPositions{{"positions", "", "Places of the subordinates, in their order."}, registry()};
    AxRwOffsetVector myExtraSpacing{
        {"extra-spacing", "m", "Step from the last place for each subordinate more than there are places."},
        registry()};
    AxString myFormationType;
};
