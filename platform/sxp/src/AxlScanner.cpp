#include "AxlScanner.h"

#include <cstring>

#include "AxLimits.h"
#include "AxNumberText.h"
#include "AxlSyntaxError.h"

AxlScanner::AxlScanner(AxlInputStream& stream)
    : myStream(stream),
      myNext(stream.myText.data() + stream.myPosition),
      myEnd(stream.myText.data() + stream.myText.size()),
      myLineStart(myNext - (stream.column() - 1)),
      myNextLine(static_cast<std::uint32_t>(stream.lineCount())),
      myTokenBegin(myNext),
      myTokenLineStart(myLineStart)
{
    if (myNext == stream.myText.data() && AxlSyntaxError::isUtf16(stream.myText))
    {
        throw AxlSyntaxError::utf16();
    }
}

AxlScanner::~AxlScanner()
{
    char const* begin = myStream.myText.data();
    myStream.myPosition = static_cast<std::size_t>(myNext - begin);
    myStream.myCounted = myStream.myPosition;
    myStream.myLineStart = static_cast<std::size_t>(myLineStart - begin);
    myStream.myLine = myNextLine;
}

void AxlScanner::scanString()
{
    char const* begin = myNext + 1;
    char const* byte = begin;
    bool escapes = false;
    for (; *byte != '"'; ++byte)
    {
        if (*byte == '\\')
        {
            if (byte[1] == '"' || byte[1] == '\\')
            {
                escapes = true;
                ++byte;
            }
        }
        else if (*byte == '\n')
        {
            ++myNextLine;
            myLineStart = byte + 1;
        }
        else if (*byte == '\0' && byte == myEnd)
        {
            myNext = myEnd;
            throw AxlSyntaxError::unclosedString(place().line, place().column);
        }
    }
    myText = {begin, static_cast<std::size_t>(byte - begin)};
    myNext = byte + 1;
    if (myText.size() > axLimits.tokenSize)
    {
        failAtLongToken();
    }
    if (escapes)
    {
        unescape();
    }
}

void AxlScanner::unescape()
{
    myUnescaped.clear();
    for (std::size_t i = 0; i < myText.size(); ++i)
    {
        if (myText[i] == '\\' && i + 1 < myText.size() && (myText[i + 1] == '"' || myText[i + 1] == '\\'))
        {
            ++i;
        }
        myUnescaped += myText[i];
    }
    myText = myUnescaped;
}

bool AxlScanner::readSlowly()
{
    if (!axParseReal(myText, myNumber))
    {
        return false; // beyond the range of a double; whoever expects a number says so
    }
    myIsInteger = myText.find_first_of(".e") == std::string_view::npos;
    std::string usual;
    AxlCellPool::appendUsual(usual, myNumber, myIsInteger);
    myIsUsual = usual == myText;
    return true;
}

void AxlScanner::skipComment()
{
    void const* lineEnd = std::memchr(myNext, '\n', static_cast<std::size_t>(myEnd - myNext));
    myNext = (lineEnd != nullptr ? static_cast<char const*>(lineEnd) : myEnd) - 1;
}

void AxlScanner::failAtControlByte() const
{
    static constexpr char theDigits[] = "0123456789abcdef";
    auto byte = static_cast<unsigned char>(*myNext);
    throw AxlSyntaxError("control-byte",
                         std::string("expected text, found the control byte 0x") + theDigits[byte >> 4] +
                             theDigits[byte & 15] + " outside of a string",
                         place().line, place().column);
}

void AxlScanner::failAtLongToken() const
{
    throw AxlSyntaxError("token-limit", "token is longer than " + std::to_string(axLimits.tokenSize) + " bytes",
                         place().line, place().column);
}
