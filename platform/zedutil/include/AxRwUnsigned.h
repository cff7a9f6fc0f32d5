#pragma once

#include "AxRwValueOf.h"

/// A whole number from 0 to 4294967295; a negative one is refused.
class ZEDOBJPARAM_API AxRwUnsigned : public AxRwValueOf<AxRwUnsigned, unsigned, true>
{
public:
    using AxRwValueOf::AxRwValueOf;
    AxRwUnsigned(AxRwUnsigned const&) = default;
    AxRwUnsigned(AxRwUnsigned const& other, AxReaderWriterRegistry* registry) : AxRwValueOf(other, registry) {}

    AxRwUnsigned& operator=(AxRwUnsigned const&) = default;
    unsigned operator=(unsigned value)
    {
        setValue(value);
        return myValue;
    }
    operator unsigned() const { return myValue; }
    bool operator==(AxRwUnsigned const& other) const { return myValue == other.myValue; }

    char const* xmlType() const override;

    static bool readValue(AxlObj const*& items, unsigned& value);
    static void writeValue(std::string& out, unsigned const& value);
    static char const* typeName() { return "AxRwUnsigned"; }
    static char const* expected() { return "a whole number that is not negative"; }
    static bool same(unsigned const& a, unsigned const& b) { return a == b; }
};
