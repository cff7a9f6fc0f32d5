#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "AxDiagnostic.h"
#include "AxSinkScope.h"

class JsonWriter;

/// Takes what the library reports for as long as it lives; what is news only is printed and not kept. A warning that
/// comes without a place is a finding as well, unless it comes after a finding, without another between them, and is
/// about the same file: then it tells the consequence. What is told of a whole file stands at its beginning. A finding
/// is kept once: what several records share is read, and reported, for each of them.
class Findings
{
public:
    enum class Print
    {
        AtOnce, ///< each on the standard error stream as it comes
        Never
    };

    explicit Findings(Print print);
    Findings(Findings const&) = delete;
    Findings& operator=(Findings const&) = delete;
    ~Findings();

    void add(AxDiagnostic diagnostic);

    bool has(std::string_view code) const;
    /// Whether a finding of that kind is about that file.
    bool has(std::string_view code, std::string const& file) const;
    bool empty() const { return myFindings.empty(); }
    /// By file, line, column and text.
    std::vector<AxDiagnostic> sorted() const { return {myFindings.begin(), myFindings.end()}; }

    /// Those that tell of files that could not be read.
    std::vector<AxDiagnostic> unread() const;

    static void write(JsonWriter& json, std::vector<AxDiagnostic> const& findings);
    /// Those that are errors.
    static std::vector<AxDiagnostic> errorsAmong(std::vector<AxDiagnostic> const& findings);
    /// Each on the standard error stream.
    static void print(std::vector<AxDiagnostic> const& findings);

private:
    struct Less
    {
        bool operator()(AxDiagnostic const& a, AxDiagnostic const& b) const;
    };

    void takeWarning(std::string const& line);

    Print myPrint;
    std::set<AxDiagnostic, Less> myFindings;
    std::string myLastFile;     // that the finding before is about
    bool myEchoFollows = false; // the library repeats a finding as a line of text
    bool myConsequenceMayFollow = false;
    std::optional<AxSinkScope> myWarnings;
    AxDiagnostics::Sink myPreviousSink;
};
