#pragma once

#include "AxRwValueOf.h"
#include "AxVector64.h"

/// Three reals, written side by side.
class ZEDOBJPARAM_API AxRwVector : public AxRwValueOf<AxRwVector, AxVector64, false>
{
public:
    using AxRwValueOf::AxRwValueOf;
    AxRwVector(AxVector64 const& initial, char const* keyword, AxReaderWriterRegistry* registry)
        : AxRwValueOf(AxSymbolString(keyword), initial, registry)
    {
    }
    AxRwVector(AxVector64 const& initial, AxSymbolString keyword, AxReaderWriterRegistry* registry)
        : AxRwValueOf(keyword, initial, registry)
    {
    }
    AxRwVector(AxRwVector const&) = default;
    AxRwVector(AxRwVector const& other, AxReaderWriterRegistry* registry) : AxRwValueOf(other, registry) {}
    ~AxRwVector() override;

    AxRwVector& operator=(AxRwVector const&) = default;
    AxRwVector& operator=(AxVector64 const& value);
    operator AxVector64 const&() const { return myValue; }
    bool operator==(AxRwVector const& other) const { return myValue == other.myValue; }
    bool operator==(AxVector64 const& other) const { return myValue == other; }
    double distSquaredTo(AxVector64 const& other) const { return myValue.distSquaredTo(other); }

    char const* xmlType() const override;

    static bool readValue(AxlObj const*& items, AxVector64& value);
    static void writeValue(std::string& out, AxVector64 const& value);
    static char const* typeName() { return "AxRwVector"; }
    static char const* expected() { return "three numbers"; }
    static bool same(AxVector64 const& a, AxVector64 const& b);
};
