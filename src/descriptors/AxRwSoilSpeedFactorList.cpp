#include "AxRwSoilSpeedFactorList.h"

AxRwSoilSpeedFactorList::~AxRwSoilSpeedFactorList() = default;

double AxRwSoilSpeedFactorList::speedFactor(AxString const& soilType) const
{
    return contains(soilType) ? get(soilType) : get("default", 1.0);
}

char const* AxRwSoilSpeedFactorList::readerWriterType() const
{
    return "AxRwSoilSpeedFactorList";
}
