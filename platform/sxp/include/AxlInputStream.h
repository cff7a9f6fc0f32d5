#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "AxExport.h"

/// A text in memory and a place in it. A UTF-8 byte-order mark at the beginning is no part of the text.
class ZEDOBJPARAM_API AxlInputStream
{
public:
    static constexpr int endOfFile = -1;

    explicit AxlInputStream(std::string text);
    explicit AxlInputStream(std::string_view text) : AxlInputStream(std::string(text)) {}
    explicit AxlInputStream(char const* text) : AxlInputStream(std::string(text != nullptr ? text : "")) {}
    AxlInputStream(AxlInputStream const&) = delete;
    AxlInputStream& operator=(AxlInputStream const&) = delete;
    virtual ~AxlInputStream();

    /// False when there was no text to be had; the stream is then empty.
    bool isValid() const { return myValid; }

    /// Line of the next byte, from 1.
    int lineCount() const
    {
        countLines();
        return static_cast<int>(myLine);
    }
    void incLineCount() { ++myLine; }
    /// Column of the next byte, from 1.
    std::uint32_t column() const;

    /// Takes the next byte, 0 to 255, or answers `endOfFile`.
    int fgetc();
    /// The next byte without taking it.
    int peekc() const;
    /// Gives the byte taken last back. Nothing happens for `endOfFile` and at the beginning.
    void ungetc(int byte);
    /// Takes the first byte that is no blank, tab, line end, form feed or vertical tab.
    int fgetc_past_whitespace();
    /// Takes everything up to and with the next `last`, or all that is left.
    void flush_until(char last);

    /// The whole text; a zero byte follows it in memory.
    std::string_view text() const { return myText; }
    /// Index of the next byte in `text()`.
    std::size_t position() const { return myPosition; }
    /// Goes on to a later place of the text.
    void moveTo(std::size_t position);

protected:
    void setText(std::string text, bool valid);

private:
    friend class AxlScanner;

    /// Lines are counted when somebody asks for one.
    void countLines() const;

    std::string myText;
    std::size_t myPosition = 0;
    mutable std::size_t myCounted = 0; // where line and its begin are those of
    mutable std::size_t myLineStart = 0;
    mutable std::uint32_t myLine = 1;
    bool myValid = true;
};
