#include "AxDiagnostic.h"

#include <memory>
#include <new>
#include <utility>

#include "AxStreams.h"

namespace
{
char const* severityText(AxSeverity severity)
{
    switch (severity)
    {
    case AxSeverity::Warning:
        return "warning";
    case AxSeverity::Info:
        return "info";
    default:
        return "error";
    }
}

/// The bytes of the UTF-8 character that begins a text; 0 when none does, or a control character above ASCII.
std::size_t characterSize(std::string_view text)
{
    auto const byte = [text](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
    std::size_t const size = byte(0) < 0x80 ? 1 : byte(0) < 0xC2 ? 0 : byte(0) < 0xE0 ? 2 : byte(0) < 0xF0 ? 3 : 4;
    bool const isOdd = byte(0) > 0xF4 || (byte(0) == 0xC2 && byte(1) < 0xA0) || (byte(0) == 0xE0 && byte(1) < 0xA0) ||
                       (byte(0) == 0xED && byte(1) > 0x9F) || (byte(0) == 0xF0 && byte(1) < 0x90) ||
                       (byte(0) == 0xF4 && byte(1) > 0x8F);
    for (std::size_t i = 1; i < size; ++i)
    {
        if (byte(i) < 0x80 || byte(i) > 0xBF)
        {
            return 0;
        }
    }
    return isOdd ? 0 : size;
}

/// One line that leaves a terminal as it is: blanks for control characters, bytes that are no text in hexadecimal.
std::string printable(std::string_view text)
{
    static constexpr char theDigits[] = "0123456789abcdef";
    std::string line;
    for (std::size_t i = 0; i < text.size();)
    {
        std::size_t const size = characterSize(text.substr(i));
        auto const byte = static_cast<unsigned char>(text[i]);
        if (size == 0)
        {
            line.append("\\x").append(1, theDigits[byte >> 4]).append(1, theDigits[byte & 15]);
        }
        else if (byte < 0x20 || byte == 0x7F)
        {
            line += ' ';
        }
        else
        {
            line += text.substr(i, size);
        }
        i += size == 0 ? 1 : size;
    }
    return line;
}

/// Shared, so that a sink may replace itself while it runs; never destroyed, so that findings may be reported while
/// the process ends.
std::shared_ptr<AxDiagnostics::Sink const>& currentSink()
{
    static auto& sink = *new std::shared_ptr<AxDiagnostics::Sink const>;
    return sink;
}

/// False, with nothing done, for a place of which all is told.
bool deliver(AxDiagnostic& diagnostic)
{
    if (diagnostic.file.empty())
    {
        try
        {
            diagnostic.file = AxSourceScope::currentFile().native();
        }
        catch (...)
        {
            // A finding that does not know its file is better than none.
        }
    }
    if (AxSourceScope::isSettled(diagnostic.file, diagnostic.line, diagnostic.column))
    {
        return false;
    }
    if (std::shared_ptr<AxDiagnostics::Sink const> const sink = currentSink())
    {
        try
        {
            (*sink)(diagnostic);
        }
        catch (...)
        {
        }
    }
    return true;
}
} // namespace

std::string AxDiagnostic::format() const
{
    std::string result = file;
    if (line != 0)
    {
        result += (result.empty() ? "" : ":") + std::to_string(line);
        if (column != 0)
        {
            result += ':' + std::to_string(column);
        }
    }
    result.append(result.empty() ? "" : ": ").append(severityText(severity)).append(": ").append(text);
    if (!hint.empty())
    {
        result.append("; ").append(hint);
    }
    if (!code.empty())
    {
        result.append(" [").append(code).append("]");
    }
    return printable(result);
}

AxDiagnostics::Sink AxDiagnostics::setSink(Sink sink)
{
    try
    {
        auto next = sink ? std::make_shared<Sink const>(std::move(sink)) : nullptr;
        auto const previous = std::exchange(currentSink(), std::move(next));
        return previous != nullptr ? *previous : Sink();
    }
    catch (...)
    {
        return {};
    }
}

void AxDiagnostics::report(AxDiagnostic diagnostic)
{
    try
    {
        AxLogStream& stream = diagnostic.severity == AxSeverity::Info ? AxInfo : AxWarn;
        if (deliver(diagnostic) && stream.isActive())
        {
            stream << diagnostic.format() << AxEndl;
        }
    }
    catch (...)
    {
    }
}

void AxDiagnostics::reportStated(AxDiagnostic diagnostic, std::string const& statedLine)
{
    try
    {
        if (deliver(diagnostic) && AxInfo.isActive())
        {
            AxInfo << diagnostic.format() << AxEndl;
        }
    }
    catch (...)
    {
    }
    AxWarn << statedLine;
}

char const* axReason(std::exception const& error)
{
    return dynamic_cast<std::bad_alloc const*>(&error) ? "out of memory" : error.what();
}

char const* axReason()
{
    try
    {
        throw;
    }
    catch (std::exception const& error)
    {
        return axReason(error);
    }
    catch (...)
    {
        return "an exception that is none of the standard library's";
    }
}
