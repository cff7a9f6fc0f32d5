#pragma once

#include "AxExport.h"
#include "AxString.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

/// A text as values hold it: one pointer. The same text, as often as records hold it, exists once, as long as one of
/// them does; so it is copied and compared as a pointer. The counts are not atomic: records stay on one thread.
class ZEDOBJPARAM_API AxSharedText
{
public:
    /// The empty text.
    AxSharedText() = default;
    explicit AxSharedText(std::string_view text) : myEntry(text.empty() ? nullptr : enter(text)) {}
    AxSharedText(AxString const& text) : AxSharedText(std::string_view(text.string())) {}
    AxSharedText(AxSharedText const& other) : myEntry(other.myEntry)
    {
        if (myEntry)
        {
            ++myEntry->uses;
        }
    }
    AxSharedText(AxSharedText&& other) noexcept : myEntry(std::exchange(other.myEntry, nullptr)) {}
    ~AxSharedText()
    {
        if (myEntry && --myEntry->uses == 0)
        {
            remove(myEntry);
        }
    }

    AxSharedText& operator=(AxSharedText other) noexcept
    {
        std::swap(myEntry, other.myEntry);
        return *this;
    }

    /// Valid until this text is assigned or destroyed.
    operator AxString const&() const { return myEntry ? myEntry->text : AxString::nullString(); }

    friend bool operator==(AxSharedText const& a, AxSharedText const& b) { return a.myEntry == b.myEntry; }

private:
    struct Entry
    {
        AxString text;
        std::uint32_t uses;
        std::uint32_t hash;
    };
    class Table;

    static Entry* enter(std::string_view text);
    static void remove(Entry* entry) noexcept;

    Entry* myEntry = nullptr;
};
