#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "AxCharacters.h"
#include "AxLimits.h"
#include "AxNumberText.h"
#include "AxlCellPool.h"
#include "AxlInputStream.h"

/// Cuts a stream's text into tokens, from the stream's place on. While a scanner exists the stream stands where the
/// scanner began; it is moved on when the scanner ends, however that happens. Relies on the zero byte behind the text.
class AxlScanner
{
public:
    enum class Token
    {
        End,
        Open,
        Close,
        String,
        Number,
        Symbol
    };

    explicit AxlScanner(AxlInputStream& stream);
    AxlScanner(AxlScanner const&) = delete;
    AxlScanner& operator=(AxlScanner const&) = delete;
    ~AxlScanner();

    /// Throws AxlSyntaxError for a control byte, an open string and a token above the limit.
    Token next();

    /// Goes to the next byte that is neither blank nor comment; false when there is none.
    bool skipBlanks();

    /// Of the token that was read last; of the next byte after `skipBlanks()`.
    AxlCellPool::Place place() const
    {
        return {myLine, static_cast<std::uint32_t>(myTokenBegin - myTokenLineStart) + 1};
    }

    /// Bytes of an atom; of a string what stands between its quotes, escapes resolved. Valid until the next token.
    std::string_view text() const { return myText; }
    double number() const { return myNumber; }
    bool isInteger() const { return myIsInteger; }
    /// Whether the number is spelled as the writer would spell it.
    bool isUsual() const { return myIsUsual; }

private:
    enum class Class : std::uint8_t
    {
        // The order tells atoms from all others.
        Symbol,
        Digit,
        NumberSign,
        Blank,
        NewLine,
        Comment,
        Open,
        Close,
        Quote,
        Control
    };

    static constexpr std::array<Class, 256> makeClasses()
    {
        std::array<Class, 256> classes{};
        for (unsigned byte = 0; byte < 0x20; ++byte)
        {
            classes[byte] = Class::Control;
        }
        classes[0x7F] = Class::Control;
        for (char blank : {' ', '\t', '\r', '\f', '\v'})
        {
            classes[static_cast<unsigned char>(blank)] = Class::Blank;
        }
        for (unsigned char digit = '0'; digit <= '9'; ++digit)
        {
            classes[digit] = Class::Digit;
        }
        for (char sign : {'+', '-', '.'})
        {
            classes[static_cast<unsigned char>(sign)] = Class::NumberSign;
        }
        classes['\n'] = Class::NewLine;
        classes[';'] = Class::Comment;
        classes['('] = Class::Open;
        classes[')'] = Class::Close;
        classes['"'] = Class::Quote;
        return classes;
    }

    static Class classOf(char byte)
    {
        static constexpr std::array<Class, 256> theClasses = makeClasses();
        return theClasses[static_cast<unsigned char>(byte)];
    }

    /// A decimal of so many digits is exact in 53 bits, and no shorter one names the same double.
    static constexpr std::ptrdiff_t theExactDigits = 15;
    /// Powers of ten that such a decimal may be divided by; each is exact.
    static constexpr std::array<double, 16> thePowersOfTen{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                           1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

    static bool isAtom(char byte) { return classOf(byte) <= Class::NumberSign; }

    static constexpr std::uint64_t eightOf(unsigned char byte) { return 0x0101010101010101U * byte; }

    static std::uint64_t eightAt(char const* bytes)
    {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes, 8);
        return word;
    }

    /// How many bytes of the word, in the order of memory, come before the first whose bits are not all 0.
    static std::size_t bytesBefore(std::uint64_t word)
    {
        return static_cast<std::size_t>(std::endian::native == std::endian::little ? std::countr_zero(word)
                                                                                   : std::countl_zero(word)) /
               8;
    }

    /// How many of the next 8 bytes are blanks before the first that is none.
    static std::size_t blanksAt(char const* bytes) { return bytesBefore(eightAt(bytes) ^ eightOf(' ')); }

    /// How many of the next 8 bytes surely belong to an atom. Short by some where a "!" stands, and on machines that
    /// store the high byte first.
    static std::size_t atomsAt(char const* bytes)
    {
        if constexpr (std::endian::native != std::endian::little)
        {
            return 0;
        }
        // The highest bit of a byte in `below(w, n)` is set if the byte is below n. A borrow may set it falsely only
        // in bytes behind the first that is.
        auto below = [](std::uint64_t word, unsigned char limit) { return (word - eightOf(limit)) & ~word; };
        std::uint64_t word = eightAt(bytes);
        std::uint64_t stops = below(word, '"' + 1) | below((word & eightOf(0xFE)) ^ eightOf('('), 1) |
                              below(word ^ eightOf(';'), 1) | below(word ^ eightOf(0x7F), 1);
        return bytesBefore(stops & eightOf(0x80));
    }

    void scanString();
    void unescape();
    Token scanSymbol(char const* from);
    Token scanNumber();
    bool readSlowly();
    void skipComment();
    [[noreturn]] void failAtControlByte() const;
    [[noreturn]] void failAtLongToken() const;

    void markToken()
    {
        myTokenBegin = myNext;
        myTokenLineStart = myLineStart;
        myLine = myNextLine;
    }

    AxlInputStream& myStream;
    char const* myNext;
    char const* myEnd;
    char const* myLineStart;
    std::uint32_t myNextLine;

    std::uint32_t myLine = 1;
    char const* myTokenBegin;
    char const* myTokenLineStart;
    std::string_view myText;
    std::string myUnescaped;
    double myNumber = 0.0;
    bool myIsInteger = false;
    bool myIsUsual = false;
};

inline bool AxlScanner::skipBlanks()
{
    for (;; ++myNext)
    {
        switch (classOf(*myNext))
        {
        case Class::Blank:
            break;
        case Class::NewLine:
            ++myNextLine;
            myLineStart = myNext + 1;
            if (myEnd - myNext > 8)
            {
                myNext += blanksAt(myNext + 1);
            }
            break;
        case Class::Comment:
            skipComment();
            break;
        default:
            markToken();
            return myNext != myEnd;
        }
    }
}

inline AxlScanner::Token AxlScanner::next()
{
    bool more = skipBlanks();
    switch (classOf(*myNext))
    {
    case Class::Open:
        ++myNext;
        return Token::Open;
    case Class::Close:
        ++myNext;
        return Token::Close;
    case Class::Symbol:
        return scanSymbol(myNext + 1);
    case Class::Digit:
    case Class::NumberSign:
        return scanNumber();
    case Class::Quote:
        scanString();
        return Token::String;
    default:
        break;
    }
    if (more)
    {
        failAtControlByte();
    }
    return Token::End;
}

inline AxlScanner::Token AxlScanner::scanSymbol(char const* from)
{
    while (myEnd - from >= 8)
    {
        std::size_t atoms = atomsAt(from);
        from += atoms;
        if (atoms != 8)
        {
            break;
        }
    }
    while (isAtom(*from))
    {
        ++from;
    }
    myText = {myNext, static_cast<std::size_t>(from - myNext)};
    myNext = from;
    if (myText.size() > axLimits.tokenSize)
    {
        failAtLongToken();
    }
    return Token::Symbol;
}

inline AxlScanner::Token AxlScanner::scanNumber()
{
    char const* begin = myNext;
    char const* byte = begin;
    bool negative = *byte == '-';
    bool plus = *byte == '+';
    byte += negative || plus;

    std::uint64_t digits = 0;
    char const* whole = byte;
    for (; axIsDigit(*byte); ++byte)
    {
        digits = digits * 10 + static_cast<unsigned char>(*byte - '0');
    }
    std::ptrdiff_t wholeCount = byte - whole;
    std::ptrdiff_t fractionCount = 0;
    bool point = *byte == '.';
    if (point)
    {
        char const* fraction = ++byte;
        for (; axIsDigit(*byte); ++byte)
        {
            digits = digits * 10 + static_cast<unsigned char>(*byte - '0');
        }
        fractionCount = byte - fraction;
    }
    std::ptrdiff_t digitCount = wholeCount + fractionCount;
    if (digitCount == 0)
    {
        return scanSymbol(begin + 1);
    }
    if (isAtom(*byte))
    {
        // An exponent, or the end of the number's shape.
        Token token = scanSymbol(byte);
        return axIsNumber(myText) && readSlowly() ? Token::Number : token;
    }

    myText = {begin, static_cast<std::size_t>(byte - begin)};
    myNext = byte;
    if (digitCount > theExactDigits)
    {
        if (myText.size() > axLimits.tokenSize)
        {
            failAtLongToken();
        }
        return readSlowly() ? Token::Number : Token::Symbol;
    }
    double value = static_cast<double>(static_cast<std::int64_t>(digits));
    value /= thePowersOfTen[static_cast<std::size_t>(fractionCount)];
    myNumber = negative ? -value : value;
    myIsInteger = !point;
    bool noSpareZero = wholeCount == 1 || (wholeCount > 1 && *whole != '0');
    if (point)
    {
        myIsUsual = !plus && noSpareZero && fractionCount > 0 && (fractionCount == 1 || byte[-1] != '0') &&
                    (digits == 0 || value >= 1e-5);
    }
    else
    {
        myIsUsual = !plus && noSpareZero && !(negative && digits == 0);
    }
    return Token::Number;
}
