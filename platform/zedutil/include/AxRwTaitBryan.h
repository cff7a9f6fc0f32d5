#pragma once

#include "AxRwValueOf.h"
#include "AxTaitBryan.h"

/// An orientation: psi, theta and phi in radians, in this order.
class ZEDOBJPARAM_API AxRwTaitBryan : public AxRwValueOf<AxRwTaitBryan, AxTaitBryan, false>
{
public:
    using AxRwValueOf::AxRwValueOf;
    AxRwTaitBryan(AxRwTaitBryan const&) = default;
    AxRwTaitBryan(AxRwTaitBryan const& other, AxReaderWriterRegistry* registry) : AxRwValueOf(other, registry) {}
    ~AxRwTaitBryan() override;

    AxRwTaitBryan& operator=(AxRwTaitBryan const&) = default;
    AxRwTaitBryan& operator=(AxTaitBryan const& value);
    operator AxTaitBryan const&() const { return myValue; }
    bool operator==(AxRwTaitBryan const& other) const { return myValue == other.myValue; }
    bool operator==(AxTaitBryan const& other) const { return myValue == other; }

    char const* xmlType() const override;

    static bool readValue(AxlObj const*& items, AxTaitBryan& value);
    static void writeValue(std::string& out, AxTaitBryan const& value);
    static char const* typeName() { return "AxRwTaitBryan"; }
    static char const* expected() { return "three angles"; }
    static bool same(AxTaitBryan const& a, AxTaitBryan const& b);
};
