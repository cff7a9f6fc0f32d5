#include "AxIntegerFields.h"

#include <charconv>
#include <system_error>

#include "AxNumberText.h"

namespace
{
char const* skipBlanks(char const* at, char const* end)
{
    while (at != end && (*at == ' ' || (*at >= '\t' && *at <= '\r')))
    {
        ++at;
    }
    return at;
}
} // namespace

int axReadIntegerFields(std::string_view text, std::span<std::int32_t> fields)
{
    char const* at = text.data();
    char const* const end = at + text.size();
    at = skipBlanks(at, end);
    int count = 0;
    while (at != end)
    {
        std::int32_t number = 0;
        auto const [stop, error] = std::from_chars(at, end, number);
        if (error != std::errc())
        {
            return -1;
        }
        if (static_cast<std::size_t>(count) < fields.size())
        {
            fields[static_cast<std::size_t>(count)] = number;
        }
        ++count;
        at = skipBlanks(stop, end);
        bool const colon = at != end && *at == ':';
        bool const separated = colon || at != stop;
        if (colon)
        {
            at = skipBlanks(at + 1, end);
        }
        if (at == end ? colon : !separated)
        {
            return -1;
        }
    }
    return count;
}

std::string axJoinIntegerFields(std::span<std::int32_t const> fields, std::string_view separator)
{
    std::string text;
    for (std::size_t i = 0; i < fields.size(); ++i)
    {
        if (i != 0)
        {
            text += separator;
        }
        axAppendInt(text, fields[i]);
    }
    return text;
}
