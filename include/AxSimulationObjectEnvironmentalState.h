#pragma once

#include "AxRwTemplatedListPtr.h"
#include "AxSimulationObjectBaseState.h"

/// A thing that has a shape of its own in a saved group: smoke, a minefield, a route. Points in metres from the origin
/// of the group.
class ZEDOBJPARAM_API AxSimulationObjectEnvironmentalState
    : public AxRecordOf<AxSimulationObjectEnvironmentalState, "AxSimulationObjectEnvironmentalState",
                        AxSimulationObjectBaseState>
{
public:
    using Points = AxRwTemplatedListPtr<AxRwVector, 1>;

    using AxRecordOf::AxRecordOf;
    ~AxSimulationObjectEnvironmentalState() override;

    static char const* theXmlType() { return "AxSimulationObjectEnvironmentalState"; }
    AxSimulationObjectEnvironmentalState* clone() const override { return AxRecordOf::copy(); }

    Points& points() { return myPoints; }
    Points const& points() const { return myPoints; }
    void setPoints(std::vector<AxVector64> const& points);

private:
    Points myPoints{{"points", "m", "Corners or stations, in order."}, registry()};
};
