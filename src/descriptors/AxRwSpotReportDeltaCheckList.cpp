#include "AxRwSpotReportDeltaCheckList.h"

AxRwSpotReportDeltaCheckList::~AxRwSpotReportDeltaCheckList() = default;

double AxRwSpotReportDeltaCheckList::delta(AxObjectType const& type, bool* found) const
{
    AxRwSpotReportDeltaCheck const* best = nullptr;
    for (AxRwSpotReportDeltaCheck const* check : *this)
    {
        if (type.matchPattern(check->objectType()))
        {
            best = check;
            if (type == check->objectType())
            {
                break;
            }
        }
    }
    if (found)
    {
        *found = best != nullptr;
    }
    return best ? best->delta() : 0.0;
}

char const* AxRwSpotReportDeltaCheckList::readerWriterType() const
{
    return "AxRwSpotReportDeltaCheckList";
}
