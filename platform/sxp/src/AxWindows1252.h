#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Code point of a byte of windows-1252; the five bytes without a character stand for the control of their number.
std::uint16_t axWindows1252(unsigned char byte);

/// Appends the code point, up to U+10FFFF, in UTF-8.
void axAppendUtf8(std::string& out, std::uint32_t point);

/// Takes one code point from the front of `text`; false, with `text` untouched, when it does not begin with one in its
/// shortest form. Surrogates are none.
bool axTakeUtf8(std::string_view& text, std::uint32_t& point);

bool axIsUtf8(std::string_view text);

/// The UTF-8 form of windows-1252 bytes.
std::string axUtf8FromWindows1252(std::string_view bytes);
