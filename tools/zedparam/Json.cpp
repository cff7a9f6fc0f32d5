#include "Json.h"

#include <cmath>
#include <cstdio>
#include <utility>

#include "AxNumberText.h"

namespace
{
/// Length of the well-formed UTF-8 sequence at the beginning of `text`, 0 when there is none.
std::size_t sequenceLength(std::string_view text)
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

void appendEscape(std::string& out, unsigned char byte)
{
    char escape[7];
    std::snprintf(escape, sizeof escape, "\\u%04x", byte);
    out += escape;
}
} // namespace

JsonWriter& JsonWriter::key(std::string_view name)
{
    string(name);
    myText += ": ";
    myFollowsKey = true;
    return *this;
}

JsonWriter& JsonWriter::string(std::string_view text)
{
    separate();
    myText += '"';
    while (!text.empty())
    {
        std::size_t const length = sequenceLength(text);
        auto const byte = static_cast<unsigned char>(text.front());
        if (byte == '"' || byte == '\\')
        {
            (myText += '\\') += text.front();
        }
        else if (length == 0 || byte < 0x20 || byte == 0x7F)
        {
            appendEscape(myText, byte);
        }
        else
        {
            myText += text.substr(0, length);
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    myText += '"';
    return *this;
}

JsonWriter& JsonWriter::number(std::string_view spelling)
{
    separate();
    myText += spelling;
    return *this;
}

JsonWriter& JsonWriter::real(double value)
{
    std::string text;
    axAppendReal(text, value);
    return std::isfinite(value) ? number(text) : string(text);
}

std::string const& JsonWriter::text()
{
    if (!myText.ends_with('\n'))
    {
        myText += '\n';
    }
    return myText;
}

void JsonWriter::print()
{
    std::string const& whole = text();
    std::fwrite(whole.data(), 1, whole.size(), stdout);
}

JsonWriter& JsonWriter::open(char bracket)
{
    separate();
    myText += bracket;
    ++myLevel;
    myIsFirst = true;
    return *this;
}

JsonWriter& JsonWriter::beginRow()
{
    open('[');
    myRowLevel = myRowLevel == 0 ? myLevel : myRowLevel;
    return *this;
}

JsonWriter& JsonWriter::close(char bracket)
{
    --myLevel;
    bool const inRow = myRowLevel != 0;
    myRowLevel = myLevel < myRowLevel ? 0 : myRowLevel;
    if (!std::exchange(myIsFirst, false) && !inRow)
    {
        newLine();
    }
    myText += bracket;
    return *this;
}

void JsonWriter::separate()
{
    if (std::exchange(myFollowsKey, false) || myLevel == 0)
    {
        return;
    }
    bool const isFirst = std::exchange(myIsFirst, false);
    if (myRowLevel != 0)
    {
        myText += isFirst ? "" : ", ";
        return;
    }
    myText += isFirst ? "" : ",";
    newLine();
}

void JsonWriter::newLine()
{
    (myText += '\n').append(static_cast<std::size_t>(myLevel) * 2, ' ');
}
