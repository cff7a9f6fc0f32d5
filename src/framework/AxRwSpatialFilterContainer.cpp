#include "AxRwSpatialFilterContainer.h"

#include <algorithm>

template class AxRwMultiTypeListTemplate<AxRwSpatialFilter>;

AxRwSpatialFilterContainer::~AxRwSpatialFilterContainer() = default;

bool AxRwSpatialFilterContainer::accepts(AxVector64 const& bodyPosition) const
{
    if (isEmpty())
    {
        return true;
    }
    for (AxRwSpatialFilter const* filter : *this)
    {
        if (filter->accepts(bodyPosition))
        {
            return true;
        }
    }
    return false;
}

double AxRwSpatialFilterContainer::maxRange() const
{
    double largest = 0.0;
    for (AxRwSpatialFilter const* filter : *this)
    {
        double const range = filter->maxRange();
        if (range <= 0.0)
        {
            return 0.0;
        }
        largest = std::max(largest, range);
    }
    return largest;
}

char const* AxRwSpatialFilterContainer::readerWriterType() const
{
    return "AxRwSpatialFilterContainer";
}
