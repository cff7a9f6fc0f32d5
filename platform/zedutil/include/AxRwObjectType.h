#pragma once

#include "AxObjectType.h"
#include "AxRwValueOf.h"

/// An object type or pattern: eight numbers, super type first, or seven when the super type is 0.
class ZEDOBJPARAM_API AxRwObjectType : public AxRwValueOf<AxRwObjectType, AxObjectType, false>
{
public:
    using AxRwValueOf::AxRwValueOf;
    AxRwObjectType(AxRwObjectType const& other, char const* keyword, AxReaderWriterRegistry* registry)
        : AxRwValueOf(AxSymbolString(keyword), other, registry)
    {
    }
    AxRwObjectType(AxRwObjectType const& other, AxSymbolString keyword, AxReaderWriterRegistry* registry)
        : AxRwValueOf(keyword, other, registry)
    {
    }
    AxRwObjectType(AxRwObjectType const& other, AxString const& keyword, AxReaderWriterRegistry* registry)
        : AxRwValueOf(AxSymbolString(keyword), other, registry)
    {
    }
    AxRwObjectType(AxRwObjectType const&) = default;
    AxRwObjectType(AxRwObjectType const& other, AxReaderWriterRegistry* registry) : AxRwValueOf(other, registry) {}
    ~AxRwObjectType() override;

    AxRwObjectType& operator=(AxRwObjectType const&) = default;
    AxRwObjectType& operator=(AxObjectType const& value);
    operator AxObjectType const&() const { return myValue; }
    bool operator==(AxRwObjectType const& other) const { return myValue == other.myValue; }
    bool operator==(AxObjectType const& other) const { return myValue == other; }

    char const* xmlType() const override;

    /// The attribute "value" of a tree node as an object type; the null type when it is absent or none.
    static AxObjectType getObjectType(AxEnvironmentPtr const& env, AxEnvValuePtr const& node);

    static bool readValue(AxlObj const*& items, AxObjectType& value);
    static void writeValue(std::string& out, AxObjectType const& value);
    static char const* typeName() { return "AxRwObjectType"; }
    static char const* expected() { return "7 or 8 whole numbers for an object type"; }
    static bool same(AxObjectType const& a, AxObjectType const& b) { return a == b; }
};
