#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

#include "AxExport.h"
#include "AxString.h"

/// What an entity is, in the seven fields of the protocol (IEEE 1278.1). A field of -1 is a wildcard when the type is
/// used as a pattern; 0 is an ordinary value.
class ZEDOBJPARAM_API AxEntityType
{
public:
    static constexpr int theNumFields = 7;
    static constexpr std::int32_t theWildcard = -1;
    using Fields = std::array<std::int32_t, theNumFields>;

    /// All fields 0: the null type.
    constexpr AxEntityType() = default;
    constexpr explicit AxEntityType(Fields const& fields) : myFields(fields) {}
    constexpr AxEntityType(int kind, int domain, int country, int category, int subcategory, int specific, int extra)
        : myFields{kind, domain, country, category, subcategory, specific, extra}
    {
    }

    constexpr int kind() const { return myFields[0]; }
    constexpr int domain() const { return myFields[1]; }
    constexpr int country() const { return myFields[2]; }
    constexpr int category() const { return myFields[3]; }
    constexpr int subcategory() const { return myFields[4]; }
    constexpr int specific() const { return myFields[5]; }
    constexpr int extra() const { return myFields[6]; }
    constexpr void setKind(int kind) { myFields[0] = kind; }
    constexpr void setDomain(int domain) { myFields[1] = domain; }
    constexpr void setCountry(int country) { myFields[2] = country; }
    constexpr void setCategory(int category) { myFields[3] = category; }
    constexpr void setSubcategory(int subcategory) { myFields[4] = subcategory; }
    constexpr void setSpecific(int specific) { myFields[5] = specific; }
    constexpr void setExtra(int extra) { myFields[6] = extra; }

    /// The fields in the order above.
    constexpr Fields const& fields() const { return myFields; }

    constexpr bool isNull() const { return myFields == Fields{}; }
    static AxEntityType const& nullType();

    /// Whether this type fits `pattern`: each field equal, or -1 in the pattern. A -1 of this type fits only a -1.
    constexpr bool matchPattern(AxEntityType const& pattern) const
    {
        std::int32_t misfits = 0;
        for (std::size_t i = 0; i < theNumFields; ++i)
        {
            misfits |= pattern.myFields[i] == theWildcard ? 0 : myFields[i] ^ pattern.myFields[i];
        }
        return misfits == 0;
    }

    /// The seven fields joined by `separator`.
    AxString string(std::string_view separator = ":") const;

    /// Reads seven integers separated by ":" or blanks; false, and `out` untouched, for any other text.
    static bool fromString(std::string_view text, AxEntityType& out);

    friend constexpr bool operator==(AxEntityType const&, AxEntityType const&) = default;

    /// Field by field, so that a pattern stands before every type that it covers.
    friend constexpr std::strong_ordering operator<=>(AxEntityType const&, AxEntityType const&) = default;

private:
    Fields myFields{};
};

template <>
struct std::hash<AxEntityType>
{
    std::size_t operator()(AxEntityType const& type) const noexcept
    {
        std::uint64_t mixed = 0;
        for (std::int32_t const field : type.fields())
        {
            mixed = (mixed ^ static_cast<std::uint32_t>(field)) * 0x9E3779B97F4A7C15U;
            mixed ^= mixed >> 32;
        }
        return static_cast<std::size_t>(mixed);
    }
};
