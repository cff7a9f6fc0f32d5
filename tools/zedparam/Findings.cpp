#include "Findings.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <tuple>
#include <utility>

#include "AxSourceScope.h"
#include "Json.h"
#include "ShownPath.h"

namespace
{
/// Whether the file stands in the line by itself, not as a part of a longer name. Folders may stand in front of it.
bool names(std::string_view line, std::string_view file)
{
    auto const endsName = [](char c) { return std::string_view(" \"',;:()\n").find(c) != std::string_view::npos; };
    for (std::size_t at = line.find(file); !file.empty() && at != std::string_view::npos; at = line.find(file, at + 1))
    {
        std::size_t const end = at + file.size();
        bool const begins = at == 0 || line[at - 1] == '/' || endsName(line[at - 1]);
        if (begins && (end == line.size() || endsName(line[end]) || line.substr(end, 2) == ".\n"))
        {
            return true;
        }
    }
    return false;
}
} // namespace

bool Findings::Less::operator()(AxDiagnostic const& a, AxDiagnostic const& b) const
{
    auto const key = [](AxDiagnostic const& finding)
    { return std::tie(finding.file, finding.line, finding.column, finding.text, finding.code, finding.hint); };
    return key(a) < key(b);
}

Findings::Findings(Print print)
    : myPrint(print),
      myPreviousSink(AxDiagnostics::setSink(
          [this](AxDiagnostic const& finding)
          {
              add(finding);
              bool const isFinding = finding.severity != AxSeverity::Info;
              myConsequenceMayFollow = isFinding || (myConsequenceMayFollow && !myFindings.empty());
              myEchoFollows = isFinding;
          }))
{
    myWarnings.emplace(AxWarn, [this](std::string const& line) { takeWarning(line); });
}

Findings::~Findings()
{
    AxDiagnostics::setSink(std::move(myPreviousSink));
}

void Findings::add(AxDiagnostic diagnostic)
{
    diagnostic.file = shownPath(diagnostic.file);
    if (diagnostic.line == 0 && !diagnostic.file.empty())
    {
        diagnostic.line = 1;
        diagnostic.column = 1;
    }
    bool const isNews = diagnostic.severity == AxSeverity::Info;
    bool const isKnown = !isNews && myFindings.contains(diagnostic);
    if (myPrint == Print::AtOnce && !isKnown)
    {
        std::fprintf(stderr, "%s\n", diagnostic.format().c_str());
    }
    if (!isNews)
    {
        myLastFile = diagnostic.file;
        myFindings.insert(std::move(diagnostic));
    }
}

void Findings::takeWarning(std::string const& line)
{
    if (std::exchange(myEchoFollows, false))
    {
        return;
    }
    std::string const file = shownPath(AxSourceScope::currentFile().native());
    if (myConsequenceMayFollow)
    {
        if (!myLastFile.empty() && (myLastFile == file || names(line, myLastFile)))
        {
            return;
        }
    }
    AxDiagnostic finding;
    finding.severity = AxSeverity::Warning;
    finding.code = "other-warning";
    finding.file = file;
    finding.text = line.substr(0, line.find_last_not_of('\n') + 1);
    add(std::move(finding));
    myConsequenceMayFollow = false;
}

bool Findings::has(std::string_view code) const
{
    return std::ranges::find(myFindings, code, &AxDiagnostic::code) != myFindings.end();
}

bool Findings::has(std::string_view code, std::string const& file) const
{
    return std::ranges::any_of(myFindings, [&, shown = shownPath(file)](AxDiagnostic const& finding)
                               { return finding.code == code && finding.file == shown; });
}

std::vector<AxDiagnostic> Findings::unread() const
{
    std::vector<AxDiagnostic> unread;
    std::ranges::copy_if(myFindings, std::back_inserter(unread),
                         [](AxDiagnostic const& finding)
                         { return finding.code == "cannot-open" || finding.code == "missing-file"; });
    return unread;
}

void Findings::write(JsonWriter& json, std::vector<AxDiagnostic> const& findings)
{
    json.beginArray();
    for (AxDiagnostic const& finding : findings)
    {
        constexpr char const* theSeverities[] = {"error", "warning", "info"};
        json.beginObject();
        json.member("severity", theSeverities[static_cast<int>(finding.severity)]);
        json.member("code", finding.code);
        json.member("file", finding.file);
        json.key("line").integer(finding.line);
        json.key("column").integer(finding.column);
        json.member("text", finding.text);
        json.member("hint", finding.hint);
        json.endObject();
    }
    json.endArray();
}

std::vector<AxDiagnostic> Findings::errorsAmong(std::vector<AxDiagnostic> const& findings)
{
    std::vector<AxDiagnostic> errors;
    std::ranges::copy_if(findings, std::back_inserter(errors),
                         [](AxDiagnostic const& finding) { return finding.severity == AxSeverity::Error; });
    return errors;
}

void Findings::print(std::vector<AxDiagnostic> const& findings)
{
    for (AxDiagnostic const& finding : findings)
    {
        std::fprintf(stderr, "%s\n", finding.format().c_str());
    }
}
