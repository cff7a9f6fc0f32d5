#include "Utf8.h"

std::size_t utf8Length(std::string_view text)
{
    auto const byte = [text](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
    unsigned const lead = byte(0);
    if (lead < 0x80)
    {
        return 1;
    }
    std::size_t const length = lead >= 0xC2 && lead < 0xE0   ? 2
                               : (lead & 0xF0) == 0xE0       ? 3
                               : lead >= 0xF0 && lead < 0xF5 ? 4
                                                             : 0;
    for (std::size_t i = 1; i < length; ++i)
    {
        if ((byte(i) & 0xC0) != 0x80)
        {
            return 0;
        }
    }
    bool const overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
    bool const surrogate = lead == 0xED && byte(1) >= 0xA0;
    bool const tooLarge = lead == 0xF4 && byte(1) >= 0x90;
    return overlong || surrogate || tooLarge ? 0 : length;
}
