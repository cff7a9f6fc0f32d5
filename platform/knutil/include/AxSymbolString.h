#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include "AxExport.h"
#include "AxString.h"

/// Interned text: one pointer, equal exactly when the texts are equal. What was interned once stays for the life of
/// the process, so that symbols may be used in static objects and compared after everything else is gone.
class ZEDOBJPARAM_API AxSymbolString
{
public:
    /// The empty symbol.
    constexpr AxSymbolString() = default;
    AxSymbolString(AxString const& text) : myEntry(intern(text.string(), hashOf(text.string()))) {}
    AxSymbolString(char const* text) : AxSymbolString(text != nullptr ? std::string_view(text) : std::string_view()) {}
    explicit AxSymbolString(std::string_view text) : myEntry(intern(text, hashOf(text))) {}

    /// For a reader that has the hash of the text already; `hash` must be `hashOf(text)`.
    AxSymbolString(std::string_view text, std::uint64_t hash) : myEntry(intern(text, hash)) {}

    AxString const& string() const { return myEntry != nullptr ? myEntry->text : AxString::nullString(); }
    operator AxString const&() const { return string(); }
    char const* c_str() const { return myEntry != nullptr ? myEntry->text.c_str() : ""; }
    std::string_view view() const { return myEntry != nullptr ? myEntry->text.string() : std::string_view(); }

    bool isNull() const { return myEntry == nullptr; }

    /// Whether the text may stand in parameter text without quotes and is read back as this same symbol.
    bool isBareWord() const { return myEntry != nullptr && myEntry->bareWord; }

    /// Identity of the text for the life of the process; null for the empty symbol.
    void const* id() const { return myEntry; }

    /// The symbol of an `id()` answered earlier.
    static AxSymbolString fromId(void const* id) { return AxSymbolString(static_cast<Entry const*>(id)); }

    /// The symbol of this text if it was interned before, else the empty symbol. Never adds to the table.
    static AxSymbolString find(std::string_view text) { return AxSymbolString(lookup(text, hashOf(text))); }

    /// The hash under which the table keeps a text.
    static std::uint64_t hashOf(std::string_view text)
    {
        std::size_t const size = text.size();
        char const* const bytes = text.data();
        std::uint64_t const seed = size * theHashFactor;
        if (size >= 8)
        {
            std::uint64_t hash = seed;
            for (std::size_t at = 0; at + 8 < size; at += 8)
            {
                hash = mix(hash, load<std::uint64_t>(bytes + at));
            }
            return mix(mix(hash, load<std::uint64_t>(bytes + size - 8)), 0);
        }
        if (size >= 4)
        {
            std::uint64_t const last = load<std::uint32_t>(bytes + size - 4);
            return mix(mix(seed, load<std::uint32_t>(bytes) | last << 32), 0);
        }
        if (size != 0)
        {
            std::uint64_t const first = load<std::uint8_t>(bytes), middle = load<std::uint8_t>(bytes + size / 2);
            return mix(seed, first | middle << 8 | std::uint64_t(load<std::uint8_t>(bytes + size - 1)) << 16);
        }
        return seed;
    }

    friend bool operator==(AxSymbolString a, AxSymbolString b) { return a.myEntry == b.myEntry; }
    friend bool operator==(AxSymbolString a, AxString const& b) { return a.view() == b.string(); }
    friend bool operator==(AxSymbolString a, std::string const& b) { return a.view() == b; }
    friend bool operator==(AxSymbolString a, std::string_view b) { return a.view() == b; }
    friend bool operator==(AxSymbolString a, char const* b) { return a.view() == (b != nullptr ? b : ""); }

    /// Order of the texts, so that what is sorted by symbols comes out the same in every run.
    friend std::strong_ordering operator<=>(AxSymbolString a, AxSymbolString b) { return a.view() <=> b.view(); }
    friend std::strong_ordering operator<=>(AxSymbolString a, AxString const& b) { return a.view() <=> b.string(); }

private:
    struct Entry
    {
        AxString text;
        bool bareWord;
    };
    class Table;

    static constexpr std::uint64_t theHashFactor = 0x9E3779B97F4A7C15U;

    constexpr explicit AxSymbolString(Entry const* entry) : myEntry(entry) {}

    static Entry const* intern(std::string_view text, std::uint64_t hash);
    static Entry const* lookup(std::string_view text, std::uint64_t hash);

    template <class Word>
    static Word load(char const* bytes)
    {
        Word word;
        std::memcpy(&word, bytes, sizeof word);
        return word;
    }

    /// A second round brings the high bits of a word down into the low bits of the hash.
    static std::uint64_t mix(std::uint64_t hash, std::uint64_t word)
    {
        hash = (hash ^ word) * theHashFactor;
        return hash ^ (hash >> 32);
    }

    Entry const* myEntry = nullptr;
};

ZEDOBJPARAM_API std::ostream& operator<<(std::ostream& out, AxSymbolString symbol);

template <>
struct std::hash<AxSymbolString>
{
    std::size_t operator()(AxSymbolString symbol) const noexcept { return std::hash<void const*>()(symbol.id()); }
};
