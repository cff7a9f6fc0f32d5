#pragma once

#include <exception>
#include <functional>
#include <string>

#include "AxExport.h"
#include "AxNearest.h"
#include "AxSourceScope.h"

enum class AxSeverity
{
    Error,
    Warning,
    Info
};

/// One finding, as a value. Empty texts and zeros stand for what is not known.
struct ZEDOBJPARAM_API AxDiagnostic
{
    AxSeverity severity = AxSeverity::Error;
    /// Stable name of the kind of finding, such as "type-count".
    std::string code{};
    std::string file{};
    /// Place of the offending token; both count from 1, the column in bytes.
    unsigned line = 0;
    unsigned column = 0;
    /// Place inside the record, keywords from the outside in.
    std::string path{};
    std::string text{};
    /// What may help, such as `did you mean "mass"?`.
    std::string hint{};

    /// One line without a newline: `file:line:col: error: text; hint [code]`, without the parts that are not known.
    /// Control characters in the texts come out as blanks.
    std::string format() const;
};

/// The way of every finding from the library to its host. Nothing that a sink does or throws reaches the reporter.
class ZEDOBJPARAM_API AxDiagnostics
{
public:
    using Sink = std::function<void(AxDiagnostic const&)>;

    /// Sends findings to `sink` from now on and answers the previous one; an empty one turns it off.
    static Sink setSink(Sink sink);

    /// To the sink, and as one line on AxWarn (on AxInfo for severity Info). A finding without a file gets that of the
    /// innermost AxSourceScope. Nothing happens for a place that is settled there.
    static void report(AxDiagnostic diagnostic);

    /// For a failure that has its own fixed text: to the sink, its located line to AxInfo, and then exactly
    /// `statedLine` on AxWarn, which is due even where the place is settled.
    static void reportStated(AxDiagnostic diagnostic, std::string const& statedLine);
};

/// What an exception says, in words for a finding where it has none of its own. Lives as long as the exception.
ZEDOBJPARAM_API char const* axReason(std::exception const& error);
/// The same of whatever is being handled, which hosts may throw; for handlers only.
ZEDOBJPARAM_API char const* axReason();
