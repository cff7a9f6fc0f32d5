#pragma once

#include "AxObjectType.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// Goes through text that ends in a zero byte as long as it stands in the usual shape: what database files consist of,
/// without comments, escapes and variables. Whoever gets false looks at the text again by other means.
class AxPlainScanner
{
public:
    /// `line` and `column`, from 1, are those of `at`.
    AxPlainScanner(char const* at, std::uint32_t line, std::uint32_t column)
        : myAt(at), myLineStart(at - (column - 1)), myLine(line)
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
            if (*myAt == '\n')
            {
                ++myLine;
                myLineStart = myAt + 1;
            }
            else if (*myAt != ' ' && *myAt != '\t' && *myAt != '\r')
            {
                return myAt != begin;
            }
        }
    }
    /// These characters, behind any blanks.
    bool takes(std::string_view text)
    {
        skipBlanks();
        for (std::size_t i = 0; i < text.size(); ++i)
        {
            if (myAt[i] != text[i])
            {
                return false;
            }
        }
        myAt += text.size();
        return true;
    }
    /// A whole number of up to nine digits.
    bool takesNumber(std::int32_t& number)
    {
        bool const isNegative = *myAt == '-';
        char const* const begin = myAt + isNegative;
        std::int32_t value = 0;
        for (myAt = begin; *myAt >= '0' && *myAt <= '9' && myAt - begin < 9; ++myAt)
        {
            value = value * 10 + (*myAt - '0');
        }
        number = isNegative ? -value : value;
        return myAt != begin && !(*myAt >= '0' && *myAt <= '9');
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
        while (*myAt != '"' && *myAt != '\\' && *myAt != '\0' && *myAt != '\n' && !(*myAt == '$' && myAt[1] == '('))
        {
            ++myAt;
        }
        text = std::string_view(begin, static_cast<std::size_t>(myAt - begin));
        return *myAt == '"';
    }

private:
    char const* myAt;
    char const* myLineStart;
    std::uint32_t myLine;
};
