#pragma once

#include "AxRwRealAttributeList.h"

/// Multipliers of the largest speed by soil type, `(keyword ("mud" 0.4) ("default" 0.9))`.
class ZEDOBJPARAM_API AxRwSoilSpeedFactorList : public AxRwRealAttributeList
{
public:
    using AxRwRealAttributeList::AxRwRealAttributeList;
    AxRwSoilSpeedFactorList(AxRwSoilSpeedFactorList const&) = default;
    ~AxRwSoilSpeedFactorList() override;
    AxRwSoilSpeedFactorList& operator=(AxRwSoilSpeedFactorList const&) = default;

    /// The factor of that soil, else that of "default", else 1.0. A soil of 0 cannot be passed.
    virtual double speedFactor(AxString const& soilType) const;

    char const* readerWriterType() const override;
};
