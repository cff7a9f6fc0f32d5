#pragma once

#include <compare>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include "AxExport.h"
#include "AxString.h"

/// Text of a path. "/" and "\" both separate, on every platform, because data files name other files in either way;
/// the text is kept as it was read and becomes a path of this machine only in `native()`.
class ZEDOBJPARAM_API AxFilename
{
public:
    AxFilename() = default;
    AxFilename(AxString text) : myText(std::move(text)) {}
    AxFilename(std::string text) : myText(std::move(text)) {}
    AxFilename(char const* text) : myText(text) {}
    explicit AxFilename(std::string_view text) : myText(text) {}

    AxString const& string() const { return myText; }
    char const* c_str() const { return myText.c_str(); }
    std::string_view view() const { return myText.string(); }

    bool isNull() const { return myText.isNull(); }

    /// False when the name begins with a separator or with a drive letter, a colon and a separator.
    bool isRelative() const;

    /// The name behind the last separator.
    AxFilename stripPath() const;

    /// What stands in front of the last separator, without it; a root keeps its separator. Empty when there is none.
    AxFilename directory() const;

    /// What follows the last "." of the name behind the last separator, without the "."; empty when there is none.
    AxString extension() const;

    /// `name` below this directory, joined by the separator that this name used last ("/" if none) and never doubling
    /// it. `name` itself when it is absolute or this name is empty.
    AxFilename combine(AxFilename const& name) const;

    /// The path for opening and for messages: "/" throughout, "." parts removed.
    std::string native() const;

    /// Whether something of this name can be found now; false on any error.
    bool exists() const;

    static AxFilename const& nullFilename();

    static constexpr bool isSeparator(char character) { return character == '/' || character == '\\'; }

    /// Exact comparison of the texts: "a/b" and "a\b" differ.
    friend bool operator==(AxFilename const&, AxFilename const&) = default;
    friend std::strong_ordering operator<=>(AxFilename const& a, AxFilename const& b) { return a.myText <=> b.myText; }

private:
    AxString myText;
};

ZEDOBJPARAM_API std::ostream& operator<<(std::ostream& out, AxFilename const& file);

template <>
struct std::hash<AxFilename>
{
    std::size_t operator()(AxFilename const& file) const noexcept { return std::hash<AxString>()(file.string()); }
};
