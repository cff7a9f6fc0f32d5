#include "AxRwSphereFilter.h"

AxRwSphereFilter::~AxRwSphereFilter() = default;

bool AxRwSphereFilter::accepts(AxVector64 const& bodyPosition) const
{
    double const distance = bodyPosition.length();
    return distance >= myMinRange && (myMaxRange <= 0.0 || distance <= myMaxRange);
}

double AxRwSphereFilter::maxRange() const
{
    return myMaxRange;
}

char const* AxRwSphereFilter::filterType() const
{
    return "sphere-filter";
}

AxRwSpatialFilter* AxRwSphereFilter::clone() const
{
    return copy();
}

void AxRwSphereFilter::setMaxRange(double range)
{
    assignSpecified(myMaxRange, range);
}

double AxRwSphereFilter::minRange() const
{
    return myMinRange;
}

void AxRwSphereFilter::setMinRange(double range)
{
    assignSpecified(myMinRange, range);
}
