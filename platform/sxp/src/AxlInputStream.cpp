#include "AxlInputStream.h"

#include <algorithm>
#include <cstring>
#include <utility>

AxlInputStream::AxlInputStream(std::string text)
{
    setText(std::move(text), true);
}

AxlInputStream::~AxlInputStream() = default;

void AxlInputStream::setText(std::string text, bool valid)
{
    myText = std::move(text);
    if (myText.starts_with("\xEF\xBB\xBF"))
    {
        myText.erase(0, 3);
    }
    myPosition = 0;
    myCounted = 0;
    myLineStart = 0;
    myLine = 1;
    myValid = valid;
}

void AxlInputStream::countLines() const
{
    char const* const text = myText.data();
    while (void const* const newline = std::memchr(text + myCounted, '\n', myPosition - myCounted))
    {
        myLineStart = myCounted = static_cast<std::size_t>(static_cast<char const*>(newline) - text) + 1;
        ++myLine;
    }
    myCounted = myPosition;
}

std::uint32_t AxlInputStream::column() const
{
    countLines();
    return static_cast<std::uint32_t>(myPosition - myLineStart) + 1;
}

int AxlInputStream::fgetc()
{
    if (myPosition == myText.size())
    {
        return endOfFile;
    }
    return static_cast<unsigned char>(myText[myPosition++]);
}

int AxlInputStream::peekc() const
{
    return myPosition == myText.size() ? endOfFile : static_cast<unsigned char>(myText[myPosition]);
}

void AxlInputStream::ungetc(int byte)
{
    if (byte == endOfFile || myPosition == 0)
    {
        return;
    }
    --myPosition;
    if (myPosition >= myCounted)
    {
        return;
    }
    myCounted = myPosition;
    if (myText[myPosition] == '\n')
    {
        --myLine;
        std::size_t newline = myPosition == 0 ? std::string::npos : myText.rfind('\n', myPosition - 1);
        myLineStart = newline == std::string::npos ? 0 : newline + 1;
    }
}

int AxlInputStream::fgetc_past_whitespace()
{
    int byte = fgetc();
    while (byte == ' ' || (byte >= '\t' && byte <= '\r'))
    {
        byte = fgetc();
    }
    return byte;
}

void AxlInputStream::flush_until(char last)
{
    int wanted = static_cast<unsigned char>(last);
    for (int byte = fgetc(); byte != endOfFile && byte != wanted;)
    {
        byte = fgetc();
    }
}

void AxlInputStream::moveTo(std::size_t position)
{
    myPosition = std::max(myPosition, std::min(position, myText.size()));
}
