#pragma once

#include "AxRecordOf.h"
#include "AxRwString.h"

/// Names a slot that must be free while the slot that holds this is taken.
class ZEDOBJPARAM_API AxSlotExclusion : public AxRecordOf<AxSlotExclusion, "AxSlotExclusion">
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxSlotExclusion() override;

    virtual AxString const& slotName() const { return mySlotName.value(); }
    virtual void setSlotName(AxString const& name) { assignSpecified(mySlotName, name); }

    char const* xmlType() const override { return "slotExclusion"; }

private:
    AxRwString mySlotName{{"slot-name", "", "The slot that must be free."}, registry()};
};
