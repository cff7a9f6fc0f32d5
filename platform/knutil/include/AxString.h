#pragma once

#include <compare>
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>

#include "AxExport.h"

/// Owned text, bytes as given. A null pointer is taken as the empty text.
class ZEDOBJPARAM_API AxString
{
public:
    AxString() = default;
    AxString(char const* text) : myText(text != nullptr ? text : "") {}
    AxString(std::string text) : myText(std::move(text)) {}
    explicit AxString(std::string_view text) : myText(text) {}
    AxString(AxString const&) = default;
    AxString(AxString&&) noexcept = default;
    virtual ~AxString() = default;

    virtual AxString& operator=(AxString const& other)
    {
        myText = other.myText;
        return *this;
    }

    AxString& operator=(AxString&& other) noexcept
    {
        myText = std::move(other.myText);
        return *this;
    }

    char const* c_str() const { return myText.c_str(); }
    std::string const& string() const { return myText; }
    std::size_t length() const { return myText.length(); }

    /// True for the empty text.
    bool isNull() const { return myText.empty(); }

    AxString& operator+=(AxString const& other)
    {
        myText += other.myText;
        return *this;
    }

    AxString& operator+=(char const* text)
    {
        myText += text != nullptr ? text : "";
        return *this;
    }

    AxString& operator+=(char character)
    {
        myText += character;
        return *this;
    }

    friend bool operator==(AxString const& a, AxString const& b) { return a.myText == b.myText; }
    friend bool operator==(AxString const& a, char const* b) { return a.myText == (b != nullptr ? b : ""); }
    friend bool operator==(AxString const& a, std::string const& b) { return a.myText == b; }
    friend bool operator==(AxString const& a, std::string_view b) { return a.myText == b; }

    /// Order of the bytes, as unsigned numbers.
    friend std::strong_ordering operator<=>(AxString const& a, AxString const& b) { return a.myText <=> b.myText; }

    /// The one empty text, for functions that answer a reference.
    static AxString const& nullString();

    /// Decimal digits of the number.
    static AxString fromUnsigned(unsigned number);

private:
    std::string myText;
};

inline AxString operator+(AxString const& a, AxString const& b)
{
    AxString sum(a);
    sum += b;
    return sum;
}

ZEDOBJPARAM_API std::ostream& operator<<(std::ostream& out, AxString const& text);

template <>
struct std::hash<AxString>
{
    std::size_t operator()(AxString const& text) const noexcept { return std::hash<std::string>()(text.string()); }
};
