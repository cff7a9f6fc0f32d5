#pragma once

#include "AxRwTemplatedListPtr.h"
#include "AxSoilFactors.h"

/// The factors of the soils that a vehicle tells apart, `(keyword (soil-factors ...)...)`.
class ZEDOBJPARAM_API AxSoilList : public AxRwTemplatedListPtr<AxSoilFactors, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    AxSoilList(AxSoilList const&) = default;
    ~AxSoilList() override;
    AxSoilList& operator=(AxSoilList const&) = default;

    /// The first factors for that soil, null when there are none.
    AxSoilFactors* lookupSoil(AxString const& soilType) const;
    /// The factors of that soil, else those of "default", else factors of 1.0. A speed factor of 0 is impassable.
    AxSoilFactors const& factors(AxString const& soilType) const;

    char const* readerWriterType() const override;
};
