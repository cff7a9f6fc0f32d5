#pragma once

#include "AxRwBoolean.h"
#include "AxSimulationObjectBaseState.h"

/// A unit in a saved group.
class ZEDOBJPARAM_API AxSimulationObjectAggregateState
    : public AxRecordOf<AxSimulationObjectAggregateState, "AxSimulationObjectAggregateState",
                        AxSimulationObjectBaseState>
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxSimulationObjectAggregateState() override;

    static char const* theXmlType() { return "AxSimulationObjectAggregateState"; }
    AxSimulationObjectAggregateState* clone() const override { return AxRecordOf::copy(); }

    AxString const& formationType() const { return myFormationType.value(); }
    void setFormationType(AxString const& type) { assignSpecified(myFormationType, type); }
    bool aggregated() const { return myAggregated; }
    void setAggregated(bool aggregated) { assignSpecified(myAggregated, aggregated); }

private:
    AxRwString myFormationType{{"formation-type", "", "Formation that its parts take."}, registry()};
    AxRwBoolean myAggregated{{"aggregated", "", "Whether it is simulated as one object."}, registry()};
};
