#pragma once

#include "AxRecordOf.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// Where one subordinate of a unit stands, in the frame of the leader.
class ZEDOBJPARAM_API AxFormationPosition : public AxRecordOf<AxFormationPosition, "AxFormationPosition">
{
public:
    using AxRecordOf::AxRecordOf;
    AxFormationPosition();
    AxFormationPosition(AxFormationPosition const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxFormationPosition() override;
    AxFormationPosition& operator=(AxFormationPosition const& other);

    virtual AxVector64 const& offset() const { return myOffset.value(); }
    virtual void setOffset(AxVector64 const& offset) { assignSpecified(myOffset, offset); }
    virtual double heading() const { return myHeading; }
    virtual void setHeading(double radians) { assignSpecified(myHeading, radians); }
    virtual AxString const& role() const { return myRole.value(); }
    virtual void setRole(AxString const& role) { assignSpecified(myRole, role); }

    /// What the positions of a formation are called in text.
    static AxSymbolString elementWord();

private:
    AxRwOffsetVector myOffset{{"offset", "m", "Place relative to the leader."}, registry()};
    AxRwReal myHeading{{"heading", "rad", "Heading relative to the leader's."}, registry()};
    AxRwString myRole{{"role", "", "Role of the sub-object that takes it; empty: any."}, registry()};
};
