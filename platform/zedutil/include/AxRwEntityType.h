#pragma once

#include "AxEntityType.h"
#include "AxRwValueOf.h"

/// An entity type or pattern: seven numbers.
class ZEDOBJPARAM_API AxRwEntityType : public AxRwValueOf<AxRwEntityType, AxEntityType, false>
{
public:
    using AxRwValueOf::AxRwValueOf;
    AxRwEntityType(AxRwEntityType const&) = default;
    AxRwEntityType(AxRwEntityType const& other, AxReaderWriterRegistry* registry) : AxRwValueOf(other, registry) {}
    ~AxRwEntityType() override;

    AxRwEntityType& operator=(AxRwEntityType const&) = default;
    AxRwEntityType& operator=(AxEntityType const& value);
    operator AxEntityType const&() const { return myValue; }
    bool operator==(AxRwEntityType const& other) const { return myValue == other.myValue; }
    bool operator==(AxEntityType const& other) const { return myValue == other; }

    char const* xmlType() const override;

    static bool readValue(AxlObj const*& items, AxEntityType& value);
    static void writeValue(std::string& out, AxEntityType const& value);
    static char const* typeName() { return "AxRwEntityType"; }
    static char const* expected() { return "7 whole numbers for an entity type"; }
    static bool same(AxEntityType const& a, AxEntityType const& b) { return a == b; }
};
