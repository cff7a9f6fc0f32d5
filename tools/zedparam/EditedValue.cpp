#include "EditedValue.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <span>
#include <tuple>
#include <utility>

#include "AxNearest.h"
#include "AxPrbProbabilityCoefficients.h"
#include "AxPrbRangeTableEntry.h"
#include "AxReaderWriterFile.h"
#include "AxRwInt.h"
#include "AxRwList.h"
#include "AxRwProperties.h"
#include "AxRwRealAttributeList.h"
#include "AxRwString.h"
#include "AxRwStringAttributeList.h"
#include "AxRwUnsigned.h"
#include "AxlPrint.h"
#include "PathText.h"
#include "RangeText.h"
#include "RecordValue.h"
#include "RowCheck.h"
#include "ShownPath.h"
#include "TextPath.h"
#include "TextPlacement.h"
#include "Units.h"

namespace
{
constexpr char const* theBlanks = " \t\r\n\f\v";

std::tuple<std::string_view, std::string_view> key(AxDiagnostic const& finding)
{
    return {finding.code, finding.text};
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

bool holdsNamedValues(AxReaderWriter const* rw)
{
    return dynamic_cast<AxRwRealAttributeList const*>(rw) != nullptr ||
           dynamic_cast<AxRwStringAttributeList const*>(rw) != nullptr ||
           dynamic_cast<AxRwProperties const*>(rw) != nullptr;
}

bool isClassWord(std::string_view name)
{
    return name == "parameter-type" || name == "component-descriptor-type" || name == "comm-model-descriptor-type";
}

bool isLeadingItem(std::string_view name)
{
    return isClassWord(name) || name == "object-type" || name == "match-type" || name == "record-name";
}

bool toOwnUnit(std::string& value, AxReaderWriter const* rw, std::string const& name, std::string& fault)
{
    std::string unit;
    double number = 0.0;
    bool const hasUnit = rw != nullptr && !isText(rw) && rw->property() == nullptr && unitOf(*rw, name, unit);
    if (!hasUnit || (unit.empty() && !numberIn(*rw, number)))
    {
        return true;
    }
    bool const isWhole =
        dynamic_cast<AxRwInt const*>(rw) != nullptr || dynamic_cast<AxRwUnsigned const*>(rw) != nullptr;
    std::string why;
    bool const isConverted = convertUnit(value, unit, isWhole, why);
    fault = isConverted ? std::string() : "\"" + name + "\" " + why;
    return isConverted;
}

std::string valueText(std::string const& value, AxReaderWriter const* rw, AxReaderWriter const* outer)
{
    TextTree const tree(value);
    if (AxRwProperty const* const property = rw != nullptr ? rw->property() : nullptr)
    {
        bool const isTyped = AxRwProperty("value", nullptr).setType(AxString(tree.root().value()));
        return isTyped ? value : property->type().string() + " " + valueText(value, property->rwValue(), nullptr);
    }
    bool const isWhole = tree.root() && tree.faults().empty() && !holdsComment(tree, 0, value.size());
    bool const isQuoted = isWhole && (tree.root().isString() || value.starts_with('$')) && !tree.root().next();
    if ((isText(rw) || dynamic_cast<AxRwStringAttributeList const*>(outer) != nullptr) && !isQuoted)
    {
        std::string quoted;
        axAppendQuoted(quoted, value);
        return quoted;
    }
    std::size_t const begin = value.find_first_not_of(theBlanks);
    return isWhole ? value.substr(begin, value.find_last_not_of(theBlanks) + 1 - begin) : std::string();
}

std::string namedValueText(AxReaderWriter const& rw, std::string const& name, std::string const& value)
{
    std::string text = "(";
    if (dynamic_cast<AxRwProperties const*>(&rw) != nullptr)
    {
        axAppendName(text, AxSymbolString(AxString(name)));
    }
    else
    {
        axAppendQuoted(text, name);
    }
    return text.append(" ").append(value).append(")");
}

ElsewhereNote elsewhere(AxReaderWriter const* rw, std::string const& name, std::string_view path)
{
    auto const* file = dynamic_cast<AxReaderWriterFile const*>(rw);
    AxReaderWriterRegistry const* const members = rw != nullptr && file == nullptr ? rw->registryIfAny() : nullptr;
    AxReaderWriter const* const member = members != nullptr ? members->find(AxSymbolString(AxString(name))) : nullptr;
    std::string of = file != nullptr ? file->name().string().string() : name;
    for (std::size_t i = 0; member != nullptr && file == nullptr && i < members->size(); ++i)
    {
        auto const* const each = dynamic_cast<AxReaderWriterFile const*>(members->entry(i).member);
        file = each != nullptr && each->content() == member ? each : nullptr;
    }
    if (file == nullptr || file->foundFilename().isNull())
    {
        return {};
    }
    if (member != nullptr)
    {
        std::size_t const slash = findOutsideQuotes(path, '/');
        path = slash == std::string_view::npos ? std::string_view() : path.substr(slash + 1);
    }
    return {"\"" + of + "\" is read from \"" + shownPath(file->foundFilename().native()) + "\"",
            path.empty() ? "change it there" : "change \"" + std::string(path) + "\" there"};
}

AxDiagnostic valueFault(AxReaderWriter const& member, AxReaderWriter const* outer, std::string const& name,
                        std::string const& value, bool isTaken, std::vector<AxDiagnostic> const& findings)
{
    bool const isOutcome = dynamic_cast<AxPrbRangeTableEntry const*>(outer) != nullptr;
    AxDiagnostic fault;
    if (!isTaken)
    {
        fault.code = findings.empty() ? "wrong-kind" : findings.front().code;
        std::string const text =
            findings.empty() ? "\"" + value + "\" is no value of \"" + name + "\"" : findings.front().text;
        fault.text = text.substr(0, text.find("; ")); // the rest tells what the library would go on with
    }
    else if (std::string const text = member.isVariableReference() ? std::string()
                                      : isOutcome                  ? rangeFault(member, {0.0, 1.0})
                                                                   : rangeFault(member);
             !text.empty())
    {
        fault.code = "out-of-range";
        fault.text = "\"" + name + "\" is " + text;
        fault.hint = "--force sets it all the same";
    }
    else if (auto const* const polynomial = dynamic_cast<AxPrbProbabilityCoefficients const*>(&member))
    {
        std::span const coefficients(polynomial->coefficients(),
                                     static_cast<std::size_t>(polynomial->numCoefficients()));
        if (std::string const extent = extentOutside(coefficients); !extent.empty())
        {
            fault.code = "out-of-range";
            fault.text = "\"" + name + "\" is " + extent + " at every range, expected 0 to 1";
            fault.hint = "--force sets it all the same";
        }
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
    std::set<std::tuple<std::string_view, std::string_view>> keys;
    std::ranges::transform(known, std::inserter(keys, keys.end()), key);
    auto const found =
        std::ranges::find_if(findings, [&keys](AxDiagnostic const& finding) { return !keys.contains(key(finding)); });
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
