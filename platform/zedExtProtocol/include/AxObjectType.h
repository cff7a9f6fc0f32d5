#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

#include "AxEntityType.h"
#include "AxExport.h"
#include "AxString.h"

/// What a simulated object is: an entity type and a super type (0 not given, 1 individual entity, 3 pseudo-aggregate,
/// 4 true aggregate, -1 any, -2 catch-all mark). The key of every database and table. A field of -1 is a wildcard when
/// the type is used as a pattern; 0 and -2 are ordinary values.
class ZEDOBJPARAM_API AxObjectType
{
public:
    static constexpr int theNumFields = 8;
    static constexpr std::int32_t theWildcard = AxEntityType::theWildcard;
    static constexpr int theCatchAllSuperType = -2;
    using Fields = std::array<std::int32_t, theNumFields>;

    /// All fields 0: the null type.
    constexpr AxObjectType() = default;

    /// The super type first.
    constexpr explicit AxObjectType(Fields const& fields) : myFields(fields) {}
    constexpr AxObjectType(int kind, int domain, int country, int category, int subcategory, int specific, int extra,
                           int superType = 0)
        : myFields{superType, kind, domain, country, category, subcategory, specific, extra}
    {
    }
    constexpr explicit AxObjectType(AxEntityType const& type, int superType = 1)
        : AxObjectType(type.kind(), type.domain(), type.country(), type.category(), type.subcategory(), type.specific(),
                       type.extra(), superType)
    {
    }

    constexpr int superType() const { return myFields[0]; }
    constexpr int kind() const { return myFields[1]; }
    constexpr int domain() const { return myFields[2]; }
    constexpr int country() const { return myFields[3]; }
    constexpr int category() const { return myFields[4]; }
    constexpr int subcategory() const { return myFields[5]; }
    constexpr int specific() const { return myFields[6]; }
    constexpr int extra() const { return myFields[7]; }
    constexpr void setSuperType(int superType) { myFields[0] = superType; }
    constexpr void setKind(int kind) { myFields[1] = kind; }
    constexpr void setDomain(int domain) { myFields[2] = domain; }
    constexpr void setCountry(int country) { myFields[3] = country; }
    constexpr void setCategory(int category) { myFields[4] = category; }
    constexpr void setSubcategory(int subcategory) { myFields[5] = subcategory; }
    constexpr void setSpecific(int specific) { myFields[6] = specific; }
    constexpr void setExtra(int extra) { myFields[7] = extra; }

    /// The fields in the order above, the super type first.
    constexpr Fields const& fields() const { return myFields; }

    /// The type without its super type.
    constexpr AxEntityType entityType() const
    {
        return {kind(), domain(), country(), category(), subcategory(), specific(), extra()};
    }

    constexpr bool isNull() const { return myFields == Fields{}; }
    static AxObjectType const& nullType();

    /// Whether this type fits `pattern`: each field, the super type included, equal, or -1 in the pattern. A -1 of
    /// this type fits only a -1.
    constexpr bool matchPattern(AxObjectType const& pattern) const
    {
        std::int32_t misfits = 0;
        for (std::size_t i = 0; i < theNumFields; ++i)
        {
            misfits |= pattern.myFields[i] == theWildcard ? 0 : myFields[i] ^ pattern.myFields[i];
        }
        return misfits == 0;
    }

    /// The seven fields of the entity type joined by `separator`, with the super type in front when it is not 0.
    AxString string(std::string_view separator = ":") const;

    /// Reads eight integers, super type first, or seven, which leave the super type 0, separated by ":" or blanks.
    /// False, and `out` untouched, for any other text.
    static bool fromString(std::string_view text, AxObjectType& out);

    friend constexpr bool operator==(AxObjectType const&, AxObjectType const&) = default;

    /// Field by field, the super type first. -1 sorts below every real value, so a pattern stands before every type
    /// that it covers and behind every more general pattern: the best-match walk relies on it.
    friend constexpr std::strong_ordering operator<=>(AxObjectType const&, AxObjectType const&) = default;

private:
    Fields myFields{};
};

template <>
struct std::hash<AxObjectType>
{
    std::size_t operator()(AxObjectType const& type) const noexcept
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
