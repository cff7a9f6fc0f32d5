#pragma once

#include "AxRwValueOf.h"
#include "AxSharedText.h"

/// A text, always written in quotes. References "$(name)" inside it are expanded while reading and kept for writing.
class ZEDOBJPARAM_API AxRwString : public AxRwValueOf<AxRwString, AxString, true, AxSharedText>
{
public:
    using AxRwValueOf::AxRwValueOf;
    AxRwString(AxKeyword const& keyword, char const* initial, AxReaderWriterRegistry* registry)
        : AxRwValueOf(keyword, registry)
    {
        start(initial);
    }
    AxRwString(char const* keyword, char const* initial, AxReaderWriterRegistry* registry)
        : AxRwValueOf(keyword, registry)
    {
        start(AxString(initial));
    }
    AxRwString(AxRwString const&) = default;
    AxRwString(AxRwString const& other, AxReaderWriterRegistry* registry) : AxRwValueOf(other, registry) {}
    ~AxRwString() override;

    AxRwString& operator=(AxRwString const&) = default;
    AxRwString& operator=(AxSymbolString value);
    AxRwString& operator=(AxString const& value);
    AxRwString& operator=(char const* value);
    operator AxString const&() const { return value(); }
    char const* c_str() const { return value().c_str(); }
    bool operator==(AxRwString const& other) const { return myValue == other.myValue; }
    bool operator==(AxString const& other) const { return value() == other; }
    bool operator==(char const* other) const { return value() == other; }

    using AxRwValueOf::getData;
    using AxRwValueOf::putData;
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings) override;
    void putData(std::string& out, int indent) override;

    static bool readValue(AxlObj const*& items, AxString& value);
    static void writeValue(std::string& out, AxString const& value);
    static char const* typeName() { return "AxRwString"; }
    static char const* expected() { return "a text"; }
    static bool same(AxSharedText const& a, AxSharedText const& b) { return a == b; }

private:
    using AxRwValueOf::start;
    void start(char const* initial);
};
