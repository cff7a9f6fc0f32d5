#pragma once

#include "AxRwValueOf.h"

#include <boost/uuid/uuid.hpp>

/// A universally unique identifier, written as its quoted canonical text; null (all zeros) unless given.
class ZEDOBJPARAM_API AxRwUUID : public AxRwValueOf<AxRwUUID, boost::uuids::uuid, true>
{
public:
    using AxRwValueOf::AxRwValueOf;
    AxRwUUID(AxRwUUID const&) = default;
    AxRwUUID(AxRwUUID const& other, AxReaderWriterRegistry* registry) : AxRwValueOf(other, registry) {}
    ~AxRwUUID() override;

    AxRwUUID& operator=(AxRwUUID const&) = default;
    AxRwUUID& operator=(boost::uuids::uuid const& value);
    /// The null identifier, and a warning, for a text that is none; the empty text is null without one.
    AxRwUUID& operator=(AxString const& text);
    bool operator==(AxRwUUID const& other) const { return myValue == other.myValue; }

    bool isNull() const { return myValue.is_nil(); }
    /// Takes a new random identifier and marks it specified.
    void generate();
    /// Lower-case canonical text.
    AxString string() const;

    static bool readValue(AxlObj const*& items, boost::uuids::uuid& value);
    static void writeValue(std::string& out, boost::uuids::uuid const& value);
    static char const* typeName() { return "AxRwUUID"; }
    static char const* expected() { return "an identifier such as \"01234567-89ab-cdef-0123-456789abcdef\""; }
    static bool same(boost::uuids::uuid const& a, boost::uuids::uuid const& b) { return a == b; }
};
