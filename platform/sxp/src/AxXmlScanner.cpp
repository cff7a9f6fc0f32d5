#include "AxXmlScanner.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstring>
#include <limits>

#include "AxCharacters.h"
#include "AxWindows1252.h"

namespace
{
using Kind = AxXmlDocument::Kind;

/// What a byte may be without a second look.
enum Class : unsigned char
{
    NameStart = 1,
    NamePart = 2,
    Blank = 4,
    InValue = 8,
    InText = 16,
    InComment = 32
};

constexpr std::array<unsigned char, 256> classes()
{
    std::array<unsigned char, 256> table{};
    auto const add = [&table](std::string_view bytes, unsigned what)
    {
        for (char const byte : bytes)
        {
            unsigned char& entry = table[static_cast<unsigned char>(byte)];
            entry = static_cast<unsigned char>(entry | what);
        }
    };
    for (unsigned byte = ' '; byte < 0x80; ++byte)
    {
        table[byte] = InValue | InText | InComment;
    }
    for (char const byte : std::string_view("<&\"'"))
    {
        table[static_cast<unsigned char>(byte)] = InText | InComment;
    }
    for (char const byte : std::string_view("<&]"))
    {
        unsigned char& entry = table[static_cast<unsigned char>(byte)];
        entry = static_cast<unsigned char>(entry & ~InText);
    }
    table['-'] = InValue | InText;
    add("\t\n", InText | InComment);
    add(" \t\n\r", Blank);
    add("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ_", NameStart | NamePart);
    add("0123456789-.:", NamePart);
    return table;
}

constexpr std::array<unsigned char, 256> theClasses = classes();

bool is(char byte, Class what)
{
    return (theClasses[static_cast<unsigned char>(byte)] & what) != 0;
}

char const* past(char const* at, Class what)
{
    while (is(*at, what))
    {
        ++at;
    }
    return at;
}

template <class Word>
std::uint64_t wordAt(char const* at)
{
    Word word;
    std::memcpy(&word, at, sizeof word);
    return word;
}

/// One of `count`, a power of two, by both ends of a name and its length: names of one element differ there.
std::size_t bucketOf(std::string_view name, std::size_t count)
{
    char const* const begin = name.data();
    char const* const end = begin + name.size();
    std::uint64_t const ends = name.size() >= 8   ? wordAt<std::uint64_t>(begin) * 31 + wordAt<std::uint64_t>(end - 8)
                               : name.size() >= 4 ? wordAt<std::uint32_t>(begin) * 31 + wordAt<std::uint32_t>(end - 4)
                                                  : wordAt<unsigned char>(begin) * 31 + wordAt<unsigned char>(end - 1);
    return static_cast<std::size_t>(((ends + name.size()) * 0x9E3779B97F4A7C15U) >> 32) & (count - 1);
}
} // namespace

bool AxXmlScanner::scan()
{
    take("\xEF\xBB\xBF");
    if (!declaration())
    {
        return false;
    }
    for (;;)
    {
        char const* const begin = myAt;
        myAt = past(myAt, Blank);
        if (static_cast<std::size_t>(myAt - begin) > axLimits.tokenSize)
        {
            return false;
        }
        bool isPlain = true;
        if (*myAt != '<')
        {
            if (myDepth == 0)
            {
                break;
            }
            isPlain = textOf(begin);
        }
        else if (myAt[1] == '/')
        {
            isPlain = endTag();
        }
        else
        {
            isPlain = myAt[1] == '!' ? comment() : startTag();
        }
        if (!isPlain)
        {
            return false;
        }
    }
    addNode(Kind::Text, myEnd, myEnd, false);
    return myHasRoot && myAt == myEnd;
}

bool AxXmlScanner::take(std::string_view word)
{
    bool const isThere =
        word.size() <= static_cast<std::size_t>(myEnd - myAt) && std::memcmp(myAt, word.data(), word.size()) == 0;
    myAt += isThere ? word.size() : 0;
    return isThere;
}

bool AxXmlScanner::declaration()
{
    if (!take("<?xml"))
    {
        return true;
    }
    if (!take(" version=\"1.0\"") && !take(" version='1.0'"))
    {
        return false;
    }
    if (take(" encoding="))
    {
        char const quote = *myAt;
        std::string encoding = std::string(myAt, std::min<std::size_t>(7, static_cast<std::size_t>(myEnd - myAt)));
        std::transform(encoding.begin(), encoding.end(), encoding.begin(),
                       [](unsigned char byte) { return static_cast<char>(std::tolower(byte)); });
        if ((quote != '"' && quote != '\'') || encoding != quote + std::string("utf-8") + quote)
        {
            return false;
        }
        myAt += encoding.size();
    }
    return take("?>");
}

void AxXmlScanner::addNode(Kind kind, char const* begin, char const* end, bool isCoded)
{
    auto const index = static_cast<std::uint32_t>(myNodes.size());
    myNodes.push_back({offset(begin), offset(end) - offset(begin), static_cast<std::uint32_t>(myAttributes.size()),
                       index + 1, kind, isCoded});
}

bool AxXmlScanner::startTag()
{
    char const* const tag = myAt + 1;
    if (!is(*tag, NameStart) || myDepth == axLimits.xmlDepth || (myDepth == 0 && myHasRoot))
    {
        return false;
    }
    myHasRoot = true;
    myAt = past(tag, NamePart);
    auto const first = static_cast<std::uint32_t>(myAttributes.size());
    auto const index = static_cast<std::uint32_t>(myNodes.size());
    addNode(Kind::Element, tag, myAt, false);
    for (;;)
    {
        char const* const behind = myAt;
        myAt = past(myAt, Blank);
        if (*myAt == '>')
        {
            ++myAt;
            myOpen[myDepth++] = index;
            return true;
        }
        if (*myAt == '/')
        {
            return myAt[1] == '>' && (myAt += 2, true);
        }
        if (myAt == behind || !attribute(first))
        {
            return false;
        }
    }
}

bool AxXmlScanner::attribute(std::uint32_t first)
{
    char const* const name = myAt;
    myAt = is(*name, NameStart) ? past(name, NamePart) : name;
    auto const size = static_cast<std::size_t>(myAt - name);
    AxXmlDocument::Attribute made{offset(name), 0, 0, static_cast<std::uint16_t>(size), false};
    myAt = past(myAt, Blank);
    if (size == 0 || size > std::numeric_limits<std::uint16_t>::max() || *myAt != '=')
    {
        return false;
    }
    myAt = past(myAt + 1, Blank);
    if (!attributeValue(made) || isRepeated(first, made))
    {
        return false;
    }
    myAttributes.push_back(made);
    return true;
}

bool AxXmlScanner::attributeValue(AxXmlDocument::Attribute& attribute)
{
    char const quote = *myAt;
    if (quote != '"' && quote != '\'')
    {
        return false;
    }
    char const* const begin = ++myAt;
    for (;;)
    {
        myAt = past(myAt, InValue);
        if (*myAt == quote)
        {
            attribute.value = offset(begin);
            attribute.valueSize = static_cast<std::uint32_t>(myAt - begin);
            ++myAt;
            return true;
        }
        if (*myAt == '"' || *myAt == '\'')
        {
            ++myAt;
        }
        else if (is(*myAt, Blank))
        {
            attribute.isCoded = true;
            ++myAt;
        }
        else if (*myAt == '&')
        {
            attribute.isCoded = true;
            if (!reference())
            {
                return false;
            }
        }
        else if (!character())
        {
            return false;
        }
    }
}

bool AxXmlScanner::isRepeated(std::uint32_t first, AxXmlDocument::Attribute const& attribute)
{
    std::string_view const name(myBegin + attribute.name, attribute.nameSize);
    auto const count = static_cast<std::uint32_t>(myAttributes.size());
    if (count - first == theMostAttributes)
    {
        return true;
    }
    for (std::size_t bucket = bucketOf(name, theNames);; bucket = (bucket + 1) % theNames)
    {
        std::uint32_t const known = myNames[bucket]; // one more than the index
        if (known <= first || known > count)
        {
            myNames[bucket] = count + 1;
            return false;
        }
        AxXmlDocument::Attribute const& other = myAttributes[known - 1];
        if (name == std::string_view(myBegin + other.name, other.nameSize))
        {
            return true;
        }
    }
}

bool AxXmlScanner::endTag()
{
    myAt += 2;
    if (myDepth == 0)
    {
        return false;
    }
    AxXmlDocument::Node& element = myNodes[myOpen[--myDepth]];
    if (!take({myBegin + element.begin, element.size}))
    {
        return false;
    }
    myAt = past(myAt, Blank);
    element.next = static_cast<std::uint32_t>(myNodes.size());
    return *myAt == '>' && (++myAt, true);
}

bool AxXmlScanner::comment()
{
    if (!take("<!--"))
    {
        return false;
    }
    char const* const begin = myAt;
    for (;;)
    {
        myAt = past(myAt, InComment);
        if (*myAt == '-' && myAt[1] == '-')
        {
            addNode(Kind::Comment, begin, myAt, false);
            myAt += 2;
            return *myAt == '>' && (++myAt, true);
        }
        if (*myAt == '-')
        {
            ++myAt;
        }
        else if (!character())
        {
            return false;
        }
    }
}

/// Text that is more than layout; the blanks in front of it belong to it. An element that holds anything else besides
/// keeps its blanks there too, which is left to the parser.
bool AxXmlScanner::textOf(char const* begin)
{
    if (myNodes.size() != myOpen[myDepth - 1] + 1U || *myAt == '&')
    {
        return false;
    }
    bool isCoded = std::find(begin, myAt, '\r') != myAt;
    for (;;)
    {
        myAt = past(myAt, InText);
        if (*myAt == '<')
        {
            addNode(Kind::Text, begin, myAt, isCoded);
            return myAt[1] == '/' && static_cast<std::size_t>(myAt - begin) <= axLimits.tokenSize;
        }
        if (*myAt == '\r')
        {
            isCoded = true;
            ++myAt;
        }
        else if (*myAt == '&')
        {
            isCoded = true;
            if (!reference())
            {
                return false;
            }
        }
        else if (*myAt == ']' && !(myAt[1] == ']' && myAt[2] == '>'))
        {
            ++myAt;
        }
        else if (!character())
        {
            return false;
        }
    }
}

/// A character beyond ASCII.
bool AxXmlScanner::character()
{
    std::string_view rest(myAt, static_cast<std::size_t>(std::min<std::ptrdiff_t>(myEnd - myAt, 4)));
    std::uint32_t point = 0;
    std::size_t const before = rest.size();
    if (static_cast<unsigned char>(*myAt) < 0x80 || !axTakeUtf8(rest, point) || !axIsXmlCharacter(point))
    {
        return false;
    }
    myAt += before - rest.size();
    return true;
}

bool AxXmlScanner::reference()
{
    if (take("&lt;") || take("&gt;") || take("&amp;") || take("&quot;") || take("&apos;"))
    {
        return true;
    }
    if (!take("&#"))
    {
        return false;
    }
    bool const isHex = *myAt == 'x';
    myAt += isHex ? 1 : 0;
    std::uint32_t point = 0;
    auto const [end, error] = std::from_chars(myAt, myEnd, point, isHex ? 16 : 10);
    bool const isWhole = error == std::errc() && *end == ';';
    myAt = isWhole ? end + 1 : end;
    return isWhole && axIsXmlCharacter(point);
}
