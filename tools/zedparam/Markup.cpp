#include "Markup.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "Utf8.h"

std::string markup(std::string_view text)
{
    std::string out;
    while (!text.empty())
    {
        std::size_t const length = utf8Length(text);
        char const byte = text.front();
        bool const isControl = static_cast<unsigned char>(byte) < 0x20 && byte != '\n' && byte != '\t';
        // U+FFFE and U+FFFF are no characters of XML.
        bool const isNone = length == 3 && text.substr(0, 2) == "\xEF\xBF" && text[2] >= '\xBE';
        if (length == 0 || isControl || byte == 0x7F || isNone)
        {
            out += "\xEF\xBF\xBD";
        }
        else if (length > 1)
        {
            out += text.substr(0, length);
        }
        else
        {
            switch (byte)
            {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            case '\'':
                out += "&#39;";
                break;
            default:
                out += byte;
            }
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return out;
}

std::string drawn(double value)
{
    char digits[64];
    constexpr double theLargest = 1e9;
    double const shown = std::isnan(value) ? 0.0 : std::clamp(value, -theLargest, theLargest);
    auto const end = std::to_chars(digits, digits + sizeof digits, shown, std::chars_format::fixed, 2).ptr;
    std::string text(digits, end);
    text.erase(text.find_last_not_of('0') + 1);
    text.erase(text.find_last_not_of('.') + 1);
    return text == "-0" ? "0" : text;
}
