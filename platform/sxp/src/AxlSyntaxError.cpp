#include "AxlSyntaxError.h"

#include <utility>

#include "AxDiagnostic.h"

AxlSyntaxError::AxlSyntaxError(char const* code, std::string text, std::uint32_t line, std::uint32_t column)
    : myCode(code), myText(std::move(text)), myLine(line), myColumn(column)
{
}

AxlSyntaxError::AxlSyntaxError(AxlSyntaxError const&) = default;
AxlSyntaxError::~AxlSyntaxError() = default;

AxlSyntaxError AxlSyntaxError::unclosedList(std::uint32_t line, std::uint32_t column)
{
    return {"unclosed-list", "the list is not closed, expected \")\" before the end of the text", line, column};
}

AxlSyntaxError AxlSyntaxError::unclosedString(std::uint32_t line, std::uint32_t column)
{
    return {"unclosed-string", "the string is not closed, expected '\"' before the end of the text", line, column};
}

AxlSyntaxError AxlSyntaxError::utf16()
{
    return {"utf-16", "expected text in UTF-8, found UTF-16", 1, 1};
}

AxDiagnostic AxlSyntaxError::diagnostic() const
{
    AxDiagnostic diagnostic;
    diagnostic.code = myCode;
    diagnostic.line = myLine;
    diagnostic.column = myColumn;
    diagnostic.text = myText;
    return diagnostic;
}

void AxlSyntaxError::report(std::string const& statedLine) const
{
    if (statedLine.empty())
    {
        AxDiagnostics::report(diagnostic());
        return;
    }
    AxDiagnostics::reportStated(diagnostic(), statedLine);
}
