#include "Findings.h"

#include <algorithm>
#include <cstdio>
#include <tuple>
#include <utility>

#include "AxSourceScope.h"
#include "Json.h"
#include "ShownPath.h"

namespace
{
auto key(AxDiagnostic const& finding)
{
    return std::tie(finding.file, finding.line, finding.column, finding.text, finding.code, finding.hint);
}
} // namespace

Findings::Findings(Print print)
    : myPrint(print),
      myPreviousSink(AxDiagnostics::setSink(
          [this](AxDiagnostic const& finding)
          {
              add(finding);
              myEchoFollows = finding.severity != AxSeverity::Info;
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
    if (myPrint == Print::AtOnce)
    {
        std::fprintf(stderr, "%s\n", diagnostic.format().c_str());
    }
    myFindings.push_back(std::move(diagnostic));
}

void Findings::takeWarning(std::string const& line)
{
    std::string const file = shownPath(AxSourceScope::currentFile().native());
    bool const restates = !file.empty() && !myFindings.empty() && myFindings.back().file == file;
    if (std::exchange(myEchoFollows, false) || restates)
    {
        return;
    }
    AxDiagnostic finding;
    finding.severity = AxSeverity::Warning;
    finding.file = file;
    finding.text = line.substr(0, line.find_last_not_of('\n') + 1);
    add(std::move(finding));
}

std::vector<AxDiagnostic> const& Findings::sorted()
{
    std::ranges::stable_sort(myFindings, {}, key);
    auto const same = std::ranges::unique(myFindings, {}, key);
    myFindings.erase(same.begin(), same.end());
    return myFindings;
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
