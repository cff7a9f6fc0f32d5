#include "AxWindows1252.h"

#include <array>

namespace
{
/// Bytes 0x80 to 0x9F; all others are those of ISO-8859-1.
constexpr std::array<std::uint16_t, 32> thePoints{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct Lead
{
    std::size_t following;
    std::uint32_t bits;
    std::uint32_t smallest;
};

/// `following` is 0 for a byte that leads nothing.
Lead leadOf(unsigned char byte)
{
    if (byte >= 0xF0)
    {
        return {byte < 0xF8 ? 3U : 0U, byte & 0x07U, 0x10000};
    }
    if (byte >= 0xE0)
    {
        return {2, byte & 0x0FU, 0x800};
    }
    return {byte >= 0xC0 ? 1U : 0U, byte & 0x1FU, 0x80};
}
} // namespace

std::uint16_t axWindows1252(unsigned char byte)
{
    return byte >= 0x80 && byte < 0xA0 ? thePoints[byte - 0x80U] : byte;
}

void axAppendUtf8(std::string& out, std::uint32_t point)
{
    auto following = [&](unsigned shift) { out += static_cast<char>(0x80U | ((point >> shift) & 0x3FU)); };
    if (point < 0x80)
    {
        out += static_cast<char>(point);
    }
    else if (point < 0x800)
    {
        out += static_cast<char>(0xC0U | (point >> 6));
        following(0);
    }
    else if (point < 0x10000)
    {
        out += static_cast<char>(0xE0U | (point >> 12));
        following(6);
        following(0);
    }
    else
    {
        out += static_cast<char>(0xF0U | (point >> 18));
        following(12);
        following(6);
        following(0);
    }
}

bool axTakeUtf8(std::string_view& text, std::uint32_t& point)
{
    if (text.empty())
    {
        return false;
    }
    auto first = static_cast<unsigned char>(text.front());
    if (first < 0x80)
    {
        point = first;
        text.remove_prefix(1);
        return true;
    }
    Lead lead = leadOf(first);
    if (lead.following == 0 || text.size() <= lead.following)
    {
        return false;
    }
    std::uint32_t found = lead.bits;
    for (std::size_t i = 1; i <= lead.following; ++i)
    {
        auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80)
        {
            return false;
        }
        found = (found << 6) | (byte & 0x3FU);
    }
    if (found < lead.smallest || found > 0x10FFFF || (found >= 0xD800 && found < 0xE000))
    {
        return false;
    }
    point = found;
    text.remove_prefix(lead.following + 1);
    return true;
}

bool axIsUtf8(std::string_view text)
{
    std::uint32_t ignored = 0;
    while (axTakeUtf8(text, ignored))
    {
    }
    return text.empty();
}

std::string axUtf8FromWindows1252(std::string_view bytes)
{
    std::string text;
    for (char byte : bytes)
    {
        axAppendUtf8(text, axWindows1252(static_cast<unsigned char>(byte)));
    }
    return text;
}
