#pragma once

#include "AxRecordOf.h"
#include "AxRwNLengthStringVector.h"
#include "AxRwObjectTypeList.h"
#include "AxRwOffsetVector.h"
#include "AxRwString.h"
#include "AxRwTaitBryan.h"
#include "AxRwTemplatedListPtr.h"
#include "AxSlotExclusion.h"

/// A place in or on a carrier that one other object can take.
class ZEDOBJPARAM_API AxEmbarkationSlotEntry : public AxRecordOf<AxEmbarkationSlotEntry, "AxEmbarkationSlotEntry">
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxEmbarkationSlotEntry() override;

    virtual AxString const& slotName() const { return mySlotName.value(); }
    virtual void setSlotName(AxString const& name) { assignSpecified(mySlotName, name); }
    virtual AxVector64 const& offset() const { return myOffset.value(); }
    virtual void setOffset(AxVector64 const& offset) { assignSpecified(myOffset, offset); }
    virtual AxTaitBryan const& orientation() const { return myOrientation.value(); }
    virtual void setOrientation(AxTaitBryan const& orientation) { assignSpecified(myOrientation, orientation); }
    /// Who may ride; empty: anyone.
    virtual AxRwObjectTypeList& objectTypes() { return myObjectTypes; }
    virtual AxRwObjectTypeList const& objectTypes() const { return myObjectTypes; }
    /// Where it is entered; empty: anywhere.
    virtual AxRwNLengthStringVector& loadPoints() { return myLoadPoints; }
    virtual AxRwNLengthStringVector const& loadPoints() const { return myLoadPoints; }
    virtual AxRwTemplatedListPtr<AxSlotExclusion, 1>& slotExclusions() { return mySlotExclusions; }
    virtual AxRwTemplatedListPtr<AxSlotExclusion, 1> const& slotExclusions() const { return mySlotExclusions; }

    char const* xmlType() const override { return "embarkationSlot"; }

private:
    AxRwString mySlotName{{"slot-name", "", "What the slot is called."}, registry()};
    AxRwOffsetVector myOffset{{"offset", "m", "Place in the carrier's body frame."}, registry()};
    AxRwTaitBryan myOrientation{{"orientation", "rad", "Attitude of the passenger, relative to the carrier."},
                                registry()};
    AxRwObjectTypeList myObjectTypes{{"object-types", "", "Types that may ride; empty: any."}, registry()};
    AxRwNLengthStringVector myLoadPoints{{"load-points", "", "Load points where it is entered; empty: any."},
                                         registry()};
    AxRwTemplatedListPtr<AxSlotExclusion, 1> mySlotExclusions{
        {"slot-exclusions", "", "Slots that must be free while this one is taken."}, registry()};
};
