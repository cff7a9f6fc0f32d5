#include "Json.h"

#include <cmath>
#include <cstdio>
#include <utility>

#include "AxNumberText.h"
#include "Utf8.h"

namespace
{
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
        std::size_t const length = utf8Length(text);
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

void JsonWriter::flush()
{
    std::fwrite(myText.data(), 1, myText.size(), stdout);
    myText.clear();
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
