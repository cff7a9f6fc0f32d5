#pragma once

#include "AxRecordOf.h"
#include "AxRwReal.h"
#include "AxRwSpatialFilter.h"

/// All around the body, between two distances.
class ZEDOBJPARAM_API AxRwSphereFilter : public AxRecordOf<AxRwSphereFilter, "AxRwSphereFilter", AxRwSpatialFilter>
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxRwSphereFilter() override;

    bool accepts(AxVector64 const& bodyPosition) const override;
    double maxRange() const override;
    char const* filterType() const override;
    AxRwSpatialFilter* clone() const override;

    virtual void setMaxRange(double range);
    virtual double minRange() const;
    virtual void setMinRange(double range);

private:
    AxRwReal myMinRange{{"min-range", "m", "Nearest distance in the region.", {0.0, axUnbounded}}, registry()};
    AxRwReal myMaxRange{{"max-range", "m", "Farthest distance in the region; 0: unlimited.", {0.0, axUnbounded}},
                        registry()};
};
