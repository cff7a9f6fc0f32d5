#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwStringList.h"

/// Switches systems and components of a unit on and off as it changes between being simulated as a whole and as its
/// members.
class ZEDOBJPARAM_API AxAggregateModelResolutionDescriptor
    : public AxDescriptorOf<AxAggregateModelResolutionDescriptor, AxComponentDescriptor,
                            "aggregate-model-resolution-descriptor">
{
public:
    AxAggregateModelResolutionDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAggregateModelResolutionDescriptor(AxAggregateModelResolutionDescriptor const& other,
                                         AxReaderWriterRegistry* registry)
        : AxAggregateModelResolutionDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAggregateModelResolutionDescriptor() override;

    virtual AxRwStringList const& aggregatedSystems() const { return myAggregatedSystems; }
    virtual AxRwStringList& aggregatedSystems() { return myAggregatedSystems; }
    virtual AxRwStringList const& disaggregatedSystems() const { return myDisaggregatedSystems; }
    virtual AxRwStringList& disaggregatedSystems() { return myDisaggregatedSystems; }
    virtual AxRwStringList const& aggregatedComponents() const { return myAggregatedComponents; }
    virtual AxRwStringList& aggregatedComponents() { return myAggregatedComponents; }
    virtual AxRwStringList const& disaggregatedComponents() const { return myDisaggregatedComponents; }
    virtual AxRwStringList& disaggregatedComponents() { return myDisaggregatedComponents; }
    virtual bool allowAggregateStateSet() const { return myAllowAggregateStateSet; }
    virtual void setAllowAggregateStateSet(bool allow) { assignSpecified(myAllowAggregateStateSet, allow); }

private:
    AxRwStringList myAggregatedSystems{
        {"aggregated-systems", "", "Systems that work while the unit is simulated as a whole."}, registry()};
    AxRwStringList myDisaggregatedSystems{
        {"disaggregated-systems", "", "Systems that work while the unit is simulated as its members."}, registry()};
    AxRwStringList myAggregatedComponents{
        {"aggregated-components", "", "Components that work while the unit is simulated as a whole."}, registry()};
    AxRwStringList myDisaggregatedComponents{
        {"disaggregated-components", "", "Components that work while the unit is simulated as its members."},
        registry()};
    AxRwBoolean myAllowAggregateStateSet{
        {"allow-aggregate-state-set", "", "Whether the unit may be told to change between the two."}, true, registry()};
};
