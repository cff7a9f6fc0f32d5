#pragma once

#include <cstdint>
#include <string_view>

constexpr bool axIsDigit(char byte)
{
    return static_cast<unsigned char>(byte - '0') < 10;
}

/// Of ASCII.
constexpr bool axIsLetter(char byte)
{
    return static_cast<unsigned char>((byte | ' ') - 'a') < 26;
}

/// Whether a text of XML is but the space between elements.
constexpr bool axIsBlank(std::string_view text)
{
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

/// Whether a document of XML can hold the character at all.
constexpr bool axIsXmlCharacter(std::uint32_t point)
{
    bool const isSurrogate = point >= 0xD800 && point <= 0xDFFF;
    return point >= ' ' ? point <= 0x10FFFF && !isSurrogate && point != 0xFFFE && point != 0xFFFF
                        : point == '\t' || point == '\n' || point == '\r';
}
