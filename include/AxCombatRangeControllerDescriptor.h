#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// A controller that publishes how far its object can fight, for display and planning.
class ZEDOBJPARAM_API AxCombatRangeControllerDescriptor
    : public AxDescriptorOf<AxCombatRangeControllerDescriptor, AxComponentDescriptor,
                            "combat-range-controller-descriptor">
{
public:
    AxCombatRangeControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxCombatRangeControllerDescriptor(AxCombatRangeControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxCombatRangeControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxCombatRangeControllerDescriptor() override;

    virtual AxString const& rangeName() const { return myRangeName.value(); }
    virtual void setRangeName(AxString const& name) { assignSpecified(myRangeName, name); }
    virtual double combatRange() const { return myCombatRange; }
    virtual void setCombatRange(double range) { assignSpecified(myCombatRange, range); }
    virtual bool useAggregateSubordinates() const { return myUseAggregateSubordinates; }
    virtual void setUseAggregateSubordinates(bool use) { assignSpecified(myUseAggregateSubordinates, use); }

private:
    AxRwString myRangeName{{"range-name", "", "Name under which the range is shown."}, registry()};
    AxRwReal myCombatRange{
        {"combat-range", "m", "Distance to which the object can fight; 0: none of its own.", axNotNegative},
        registry()};
    AxRwBoolean myUseAggregateSubordinates{
        {"use-aggregate-subordinates", "", "Whether a unit takes the range from its subordinates."}, registry()};
};
