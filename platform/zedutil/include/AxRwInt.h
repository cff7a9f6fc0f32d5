#pragma once

#include "AxRwValueOf.h"

/// A whole number of 32 bits. A real without fraction is read as well.
class ZEDOBJPARAM_API AxRwInt : public AxRwValueOf<AxRwInt, int, true>
{
public:
    using AxRwValueOf::AxRwValueOf;
    AxRwInt(AxRwInt const&) = default;
    AxRwInt(AxRwInt const& other, AxReaderWriterRegistry* registry) : AxRwValueOf(other, registry) {}

    AxRwInt& operator=(AxRwInt const&) = default;
    int operator=(int value)
    {
        setValue(value);
        return myValue;
    }
    operator int() const { return myValue; }
    int operator+=(int value) { return *this = myValue + value; }
    int operator-=(int value) { return *this = myValue - value; }
    int operator*=(int value) { return *this = myValue * value; }
    bool operator==(AxRwInt const& other) const { return myValue == other.myValue; }

    /// The attribute `name` of a tree node as a number, 0 when it is absent or no number.
    static int getInt(AxEnvironmentPtr const& env, AxString const& name, AxEnvValuePtr const& node);
    /// The attribute `name` of a tree node, written in hexadecimal with or without "0x"; 0 when it is none.
    static int getIntegerFromHex(AxEnvironmentPtr const& env, AxString const& name, AxEnvValuePtr const& node);

    char const* xmlType() const override;

    static bool readValue(AxlObj const*& items, int& value);
    static void writeValue(std::string& out, int const& value);
    static char const* typeName() { return "AxRwInt"; }
    static char const* expected() { return "a whole number"; }
    static bool same(int const& a, int const& b) { return a == b; }
};
