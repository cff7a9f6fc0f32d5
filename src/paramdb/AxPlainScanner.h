#pragma once

#include "AxObjectType.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// Goes through text that ends in a zero byte as long as it stands in the usual shape: what database files consist of,
/// without comments, escapes and variables. Whoever gets false looks at the text again by other means.
class AxPlainScanner
{
public:
    /// `end` is the zero byte; `line` and `column`, from 1, are those of `at`.
    AxPlainScanner(char const* at, char const* end, std::uint32_t line, std::uint32_t column)
        : myAt(at), myEnd(end), myLineStart(at - (column - 1)), myLine(line)
    {
    }

    char const* place() const { return myAt; }
    std::uint32_t line() const { return myLine; }
    std::uint32_t column() const { return static_cast<std::uint32_t>(myAt - myLineStart) + 1; }

    /// False when there are none.
    bool skipBlanks()
    {
        char const* const begin = myAt;
        for (;; ++myAt)
        {
            while (*myAt == ' ')
            {
                ++myAt;
            }
            if (*myAt == '\n')
            {
                ++myLine;
                myLineStart = myAt + 1;
            }
            else if (*myAt != '\t' && *myAt != '\r')
            {
                return myAt != begin;
            }
        }
    }
    /// These characters, behind any blanks.
    template <std::size_t size>
    bool takes(char const (&text)[size])
    {
        skipBlanks();
        bool const isThere =
            static_cast<std::size_t>(myEnd - myAt) >= size - 1 && std::memcmp(myAt, text, size - 1) == 0;
        myAt += isThere ? size - 1 : 0;
        return isThere;
    }
    /// A whole number of up to nine digits.
    bool takesNumber(std::int32_t& number)
    {
        bool const isNegative = *myAt == '-';
        char const* const begin = myAt + isNegative;
        auto const digit = [](char character) { return static_cast<std::uint32_t>(character) - '0'; };
        std::uint32_t value = 0;
        for (myAt = begin; digit(*myAt) <= 9; ++myAt)
        {
            value = value * 10 + digit(*myAt);
        }
        number = static_cast<std::int32_t>(isNegative ? 0 - value : value);
        return myAt != begin && myAt - begin <= 9;
    }
    /// Seven or eight whole numbers, each behind a blank.
    bool takesType(AxObjectType& type)
    {
        AxObjectType::Fields fields{};
        std::size_t count = 0;
        for (; count < fields.size() && skipBlanks() && *myAt != ')'; ++count)
        {
            if (!takesNumber(fields[count]))
            {
                return false;
            }
        }
        if (count + 1 == fields.size())
        {
            std::move_backward(fields.begin(), fields.end() - 1, fields.end());
            fields[0] = 0;
        }
        type = AxObjectType(fields);
        return count + 1 >= fields.size();
    }
    /// Up to the quote, on one line.
    bool takesText(std::string_view& text)
    {
        char const* const begin = myAt;
        while (!endsText(*myAt) || (*myAt == '$' && myAt[1] != '('))
        {
            ++myAt;
        }
        text = std::string_view(begin, static_cast<std::size_t>(myAt - begin));
        return *myAt == '"';
    }

private:
    static bool endsText(char character)
    {
        static constexpr auto isEnd = []
        {
            std::array<bool, 256> table{};
            for (char const end : {'"', '\\', '$', '\n', '\0'})
            {
                table[static_cast<unsigned char>(end)] = true;
            }
            return table;
        }();
        return isEnd[static_cast<unsigned char>(character)];
    }

    char const* myAt;
    char const* myEnd;
    char const* myLineStart;
    std::uint32_t myLine;
};
