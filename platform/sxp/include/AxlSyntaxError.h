#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

#include "AxExport.h"

struct AxDiagnostic;

/// Text that breaks the grammar of cells. Thrown by AxcRead; it ends inside the library.
class ZEDOBJPARAM_API AxlSyntaxError : public std::exception
{
public:
    /// `code` must live for ever.
    AxlSyntaxError(char const* code, std::string text, std::uint32_t line, std::uint32_t column);
    AxlSyntaxError(AxlSyntaxError const&);
    AxlSyntaxError& operator=(AxlSyntaxError const&) = delete;
    ~AxlSyntaxError() override;

    /// For a text that ends inside the list or the string that begins here.
    static AxlSyntaxError unclosedList(std::uint32_t line, std::uint32_t column);
    static AxlSyntaxError unclosedString(std::uint32_t line, std::uint32_t column);
    /// For a text that begins with the byte-order mark of UTF-16; see isUtf16.
    static AxlSyntaxError utf16();
    static bool isUtf16(std::string_view text) { return text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF"); }

    char const* what() const noexcept override { return myText.c_str(); }
    /// "unclosed-list", "unclosed-string", "stray-parenthesis", "control-byte", "utf-16", "nesting-limit" or
    /// "token-limit".
    char const* code() const { return myCode; }
    std::string const& text() const { return myText; }
    /// Place of the fault; for something left open, of its beginning.
    std::uint32_t line() const { return myLine; }
    std::uint32_t column() const { return myColumn; }

    /// As an error in the file of the innermost AxSourceScope.
    AxDiagnostic diagnostic() const;
    /// Reports that, with `statedLine` for the warning stream when there is one.
    void report(std::string const& statedLine = {}) const;

private:
    char const* myCode;
    std::string myText;
    std::uint32_t myLine;
    std::uint32_t myColumn;
};
