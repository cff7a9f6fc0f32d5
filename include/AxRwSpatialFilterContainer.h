#pragma once

#include "AxRwMultiTypeListTemplate.h"
#include "AxRwSpatialFilter.h"

extern template class ZEDOBJPARAM_API AxRwMultiTypeListTemplate<AxRwSpatialFilter>;

/// The union of its filters; without any, everywhere.
class ZEDOBJPARAM_API AxRwSpatialFilterContainer : public AxRwMultiTypeListTemplate<AxRwSpatialFilter>
{
public:
    using AxRwMultiTypeListTemplate::AxRwMultiTypeListTemplate;
    ~AxRwSpatialFilterContainer() override;

    /// Whether a place in body axes (metres) lies in any of the regions.
    bool accepts(AxVector64 const& bodyPosition) const;
    /// The largest range of the filters; 0.0 when there is none or one is unlimited.
    double maxRange() const;

    char const* readerWriterType() const override;
};
