#include "AxDiagnostic.h"

#include <memory>
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
    for (char& c : result)
    {
        bool const control = static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
        c = control ? ' ' : c;
    }
    return result;
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
