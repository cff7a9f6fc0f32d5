#pragma once

#include "AxRwValueOf.h"

/// A real number, written in the shortest form that reads back to the same value.
class ZEDOBJPARAM_API AxRwReal : public AxRwValueOf<AxRwReal, double, true>
{
public:
    using AxRwValueOf::AxRwValueOf;
    AxRwReal(AxRwReal const&) = default;
    AxRwReal(AxRwReal const& other, AxReaderWriterRegistry* registry) : AxRwValueOf(other, registry) {}

    AxRwReal& operator=(AxRwReal const&) = default;
    double operator=(double value)
    {
        setValue(value);
        return myValue;
    }
    operator double() const { return myValue; }
    double operator+=(double value) { return *this = myValue + value; }
    double operator-=(double value) { return *this = myValue - value; }
    double operator*=(double value) { return *this = myValue * value; }
    double operator/=(double value) { return *this = myValue / value; }
    bool operator==(AxRwReal const& other) const { return myValue == other.myValue; }

    /// The attribute `name` of a tree node as a number, 0.0 when it is absent or no number.
    static double getDouble(AxEnvironmentPtr const& env, AxString const& name, AxEnvValuePtr const& node);

    char const* xmlType() const override;

    static bool readValue(AxlObj const*& items, double& value);
    static void writeValue(std::string& out, double const& value);
    static char const* typeName() { return "AxRwReal"; }
    static char const* expected() { return "a number"; }
    /// Two not-a-numbers are the same, so that a record equals its copy.
    static bool same(double const& a, double const& b) { return a == b || (a != a && b != b); }
};
