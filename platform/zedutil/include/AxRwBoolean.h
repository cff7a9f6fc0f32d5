#pragma once

#include "AxRwValueOf.h"

/// A truth value, written `true` or `false`; yes/no, on/off, t/f in any case and 1/0 are read as well.
class ZEDOBJPARAM_API AxRwBoolean : public AxRwValueOf<AxRwBoolean, bool, true>
{
public:
    using AxRwValueOf::AxRwValueOf;
    AxRwBoolean(bool initial, char const* keyword, AxReaderWriterRegistry* registry)
        : AxRwValueOf(AxSymbolString(keyword), initial, registry)
    {
    }
    AxRwBoolean(bool initial, AxSymbolString keyword, AxReaderWriterRegistry* registry)
        : AxRwValueOf(keyword, initial, registry)
    {
    }
    AxRwBoolean(AxRwBoolean const&) = default;
    AxRwBoolean(AxRwBoolean const& other, AxReaderWriterRegistry* registry) : AxRwValueOf(other, registry) {}

    AxRwBoolean& operator=(AxRwBoolean const&) = default;
    bool operator=(bool value)
    {
        setValue(value);
        return myValue;
    }
    operator bool() const { return myValue; }
    bool operator==(AxRwBoolean const& other) const { return myValue == other.myValue; }

    /// True for the words that are read as true; false for everything else.
    static bool ToBool(AxString const& text);
    /// The attribute `name` of a tree node by `ToBool`; false when it is absent.
    static bool getBoolAttribute(AxEnvironmentPtr const& env, AxString const& name, AxEnvValuePtr const& node);

    char const* xmlType() const override;

    static bool readValue(AxlObj const*& items, bool& value);
    static void writeValue(std::string& out, bool const& value);
    static char const* typeName() { return "AxRwBoolean"; }
    static char const* expected() { return "true or false"; }
    static bool same(bool const& a, bool const& b) { return a == b; }
};
