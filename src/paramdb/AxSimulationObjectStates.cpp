#include "AxSimulationObjectAggregateState.h"
#include "AxSimulationObjectEntityState.h"
#include "AxSimulationObjectEnvironmentalState.h"

AxSimulationObjectBaseState::~AxSimulationObjectBaseState() = default;

AxSimulationObjectEntityState::~AxSimulationObjectEntityState() = default;

AxSimulationObjectAggregateState::~AxSimulationObjectAggregateState() = default;

AxSimulationObjectEnvironmentalState::~AxSimulationObjectEnvironmentalState() = default;

void AxSimulationObjectEnvironmentalState::setPoints(std::vector<AxVector64> const& points)
{
    static AxSymbolString const word("point");
    myPoints.clear();
    for (AxVector64 const& point : points)
    {
        myPoints.add(new AxRwVector(word, point, nullptr));
    }
    myPoints.setValueSpecified(true, true);
}
