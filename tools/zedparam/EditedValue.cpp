#include "EditedValue.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "AxNearest.h"
#include "AxReaderWriterFile.h"
#include "AxRwList.h"
#include "AxRwString.h"
#include "AxlPrint.h"
#include "RangeText.h"
#include "TextPath.h"
#include "TextPlacement.h"

namespace
{
constexpr char const* theBlanks = " \t\r\n\f\v";

auto key(AxDiagnostic const& finding)
{
    return std::tie(finding.code, finding.text);
}
} // namespace

bool holdsItems(AxReaderWriter const& rw)
{
    AxReaderWriterRegistry const* const members = membersIn(&rw);
    return !rw.isValue() &&
           (dynamic_cast<AxRwList const*>(&rw) != nullptr || (members != nullptr && members->size() != 0));
}

bool isText(AxReaderWriter const* rw)
{
    return dynamic_cast<AxRwString const*>(rw) != nullptr || dynamic_cast<AxReaderWriterFile const*>(rw) != nullptr;
}

std::string valueText(std::string const& value, AxReaderWriter const* rw)
{
    TextTree const tree(value);
    bool const isWhole = tree.root() && tree.faults().empty() && !holdsComment(tree, 0, value.size());
    bool const isQuoted = isWhole && (tree.root().isString() || value.starts_with('$')) && !tree.root().next();
    if (isText(rw) && !isQuoted)
    {
        std::string quoted;
        axAppendQuoted(quoted, value);
        return quoted;
    }
    std::size_t const begin = value.find_first_not_of(theBlanks);
    return isWhole ? value.substr(begin, value.find_last_not_of(theBlanks) + 1 - begin) : std::string();
}

AxDiagnostic valueFault(AxReaderWriter const& member, std::string const& name, std::string const& value, bool isTaken,
                        std::vector<AxDiagnostic> const& findings)
{
    AxDiagnostic fault;
    if (!isTaken)
    {
        fault.code = findings.empty() ? "wrong-kind" : findings.front().code;
        std::string const text =
            findings.empty() ? "\"" + value + "\" is no value of \"" + name + "\"" : findings.front().text;
        fault.text = text.substr(0, text.find("; ")); // the rest tells what the library would go on with
    }
    else if (std::string const text = member.isVariableReference() ? std::string() : rangeFault(member); !text.empty())
    {
        fault.code = "out-of-range";
        fault.text = "\"" + name + "\" is " + text;
        fault.hint = "--force sets it all the same";
    }
    return fault;
}

std::string shownItem(std::string_view source)
{
    constexpr std::size_t theLongest = 60;
    std::string text(source.substr(0, source.find('\n')));
    if (text.size() > theLongest || text.size() < source.size())
    {
        text.resize(std::min(text.size(), theLongest));
        text += " ...";
    }
    return text;
}

AxDiagnostic const* firstNew(std::vector<AxDiagnostic> const& findings, std::vector<AxDiagnostic> const& known)
{
    auto const found = std::ranges::find_if(findings, [&known](AxDiagnostic const& finding)
                                            { return std::ranges::find(known, key(finding), key) == known.end(); });
    return found != findings.end() ? &*found : nullptr;
}

std::string nearestHint(std::string_view name, std::vector<std::string> const& known)
{
    std::vector<std::string_view> const names(known.begin(), known.end());
    std::string_view const nearest = axNearest(name, names);
    return nearest.empty() || nearest == name ? std::string() : "did you mean \"" + std::string(nearest) + "\"?";
}

void noteUnboundVariables(AxReaderWriter const& rw, std::string const& file, std::vector<AxDiagnostic>& findings)
{
    for (auto const& [name, value] : rw.unboundVariables())
    {
        AxDiagnostic finding;
        finding.severity = AxSeverity::Warning;
        finding.code = "unbound-variable";
        finding.file = file;
        finding.text = "nothing binds the variable \"" + name.string() + "\"";
        findings.push_back(std::move(finding));
    }
}
