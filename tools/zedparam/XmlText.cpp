#include "XmlText.h"

#include <algorithm>

namespace
{
constexpr std::string_view theXmlBlanks = " \t\r\n";

/// Behind `mark`, which is sought from a byte on; the end of the text when it is missing.
std::size_t behind(std::string_view text, std::size_t from, std::string_view mark)
{
    std::size_t const at = text.find(mark, from);
    return at == std::string_view::npos ? text.size() : at + mark.size();
}
} // namespace

namespace XmlText
{
std::size_t offset(std::string_view text, std::uint32_t line, std::uint32_t column)
{
    std::size_t begin = text.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    for (; line > 1; --line)
    {
        begin = behind(text, begin, "\n");
    }
    return std::min(begin + std::max(column, 1U) - 1, text.size());
}

Range attributeValue(std::string_view text, std::size_t attribute)
{
    std::size_t const begin = std::min(text.find_first_of("\"'", attribute), text.size() - 1) + 1;
    return {begin, std::min(text.find(text[begin - 1], begin), text.size())};
}

bool findAttribute(std::string_view text, std::size_t tag, std::string_view name, Range& value)
{
    std::size_t const end = tagEnd(text, tag);
    std::size_t at = text.find_first_of(theXmlBlanks, tag);
    while ((at = text.find_first_not_of(theXmlBlanks, at)) < end && text[at] != '>' && text[at] != '/')
    {
        value = attributeValue(text, at);
        if (text.substr(at, text.find_first_of("= \t\r\n", at) - at) == name)
        {
            return true;
        }
        at = value.end + 1;
    }
    return false;
}

std::size_t tagEnd(std::string_view text, std::size_t tag)
{
    std::size_t at = text.find_first_of(">\"'", tag);
    while (at < text.size() && text[at] != '>')
    {
        at = text.find_first_of(">\"'", behind(text, at + 1, text.substr(at, 1)));
    }
    return std::min(at, text.size() - 1) + 1;
}

std::size_t elementEnd(std::string_view text, std::size_t tag)
{
    std::size_t depth = 0;
    for (std::size_t at = tag; at < text.size(); at = std::min(text.find('<', at), text.size()))
    {
        std::string_view const rest = text.substr(at);
        if (rest.starts_with("<!--"))
        {
            at = behind(text, at, "-->");
        }
        else if (rest.starts_with("<![CDATA["))
        {
            at = behind(text, at, "]]>");
        }
        else if (rest.starts_with("<?"))
        {
            at = behind(text, at, "?>");
        }
        else
        {
            bool const closes = rest.starts_with("</");
            at = tagEnd(text, at);
            depth += closes ? std::size_t(0) - 1 : text[at - 2] == '/' ? 0 : 1;
            if (depth == 0)
            {
                return at;
            }
        }
    }
    return text.size();
}

std::string escaped(std::string_view value, char quote)
{
    std::string out;
    for (char const byte : value)
    {
        switch (byte)
        {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '\t':
        case '\n':
        case '\r':
            out.append("&#").append(std::to_string(static_cast<int>(byte))).append(";");
            break;
        default:
            out += byte == quote ? (quote == '"' ? "&quot;" : "&apos;") : std::string(1, byte);
        }
    }
    return out;
}
} // namespace XmlText
