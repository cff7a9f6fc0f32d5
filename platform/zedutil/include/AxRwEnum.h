#pragma once

#include "AxRwInt.h"

/// A whole number that stands for an enumerator of `E`. Values without a name are kept: the standard's lists grow.
template <class E>
class AxRwEnum : public AxRwInt
{
public:
    using AxRwInt::AxRwInt;
    AxRwEnum(AxKeyword const& keyword, E initial, AxReaderWriterRegistry* registry)
        : AxRwInt(keyword, static_cast<int>(initial), registry)
    {
    }
    AxRwEnum(AxRwEnum const&) = default;
    AxRwEnum(AxRwEnum const& other, AxReaderWriterRegistry* registry) : AxRwInt(other, registry) {}

    AxRwEnum& operator=(AxRwEnum const&) = default;
    E operator=(E value)
    {
        setValue(static_cast<int>(value));
        return value;
    }
    E value() const { return static_cast<E>(myValue); }
    operator E() const { return value(); }
};
