#include "RowCheck.h"

#include <algorithm>
#include <unordered_set>
#include <utility>
#include <vector>

#include "AxDiagnostic.h"
#include "AxNumberText.h"
#include "AxSourceScope.h"
#include "AxlObj.h"
#include "CheckedFiles.h"
#include "Findings.h"

namespace
{
bool isProbability(double value)
{
    return value >= 0.0 && value <= 1.0;
}

/// One row of a range list.
struct Row
{
    double range;
    AxlObj const* place;
    std::vector<std::string_view> outcomes{}; // each once
};

Row readRow(AxlObj const& range, AxlObj const* outcomes, CellReport const& report)
{
    Row row{range.flonum(), &range};
    std::unordered_set<std::string_view> names;
    for (; outcomes->isPair(); outcomes = outcomes->cdr())
    {
        AxlObj const& outcome = *outcomes->car();
        AxlObj const& value = *outcome.cdr()->car();
        std::string_view const name = outcome.car()->text();
        if (name.empty() || !value.isNumber())
        {
            continue;
        }
        std::string const at = '"' + std::string(name) + "\" at " + spelled(row.range) + " m";
        if (!isProbability(value.flonum()))
        {
            report("out-of-range", value,
                   "probability of " + at + " is " + spelled(value.flonum()) + ", expected 0 to 1");
        }
        if (!names.insert(name).second)
        {
            report("repeated-outcome", outcome, at + " is told again; the first answers");
            continue;
        }
        row.outcomes.push_back(name);
    }
    return row;
}

void checkOrder(std::vector<Row> const& rows, CellReport const& report)
{
    std::unordered_set<double> ranges;
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        Row const& row = rows[i];
        if (row.range < 0.0)
        {
            report("out-of-range", *row.place, "range is " + spelled(row.range) + ", expected 0.0 or more");
        }
        if (!ranges.insert(row.range).second)
        {
            report("repeated-range", *row.place, "another row of range " + spelled(row.range) + "; the later counts");
        }
        else if (i != 0 && row.range < rows[i - 1].range)
        {
            report("out-of-order", *row.place,
                   "the row of range " + spelled(row.range) + " stands behind that of " + spelled(rows[i - 1].range));
        }
    }
}

void checkOutcomes(std::vector<Row> const& rows, CellReport const& report)
{
    std::vector<std::string_view> all;
    std::unordered_set<std::string_view> names;
    for (Row const& row : rows)
    {
        std::ranges::copy_if(row.outcomes, std::back_inserter(all),
                             [&](std::string_view name) { return names.insert(name).second; });
    }
    for (Row const& row : rows)
    {
        names = {row.outcomes.begin(), row.outcomes.end()};
        for (std::string_view const name : names.size() != all.size() ? all : std::vector<std::string_view>())
        {
            if (!names.contains(name))
            {
                report("missing-outcome", *row.place,
                       "the row of range " + spelled(row.range) + " has no \"" + std::string(name) +
                           "\", which counts as 0");
            }
        }
    }
}
} // namespace

std::string extentOutside(std::span<double const> coefficients)
{
    if (coefficients.size() == 1)
    {
        return isProbability(coefficients.front()) ? std::string() : spelled(coefficients.front());
    }
    bool isBelow = !coefficients.empty();
    bool isAbove = isBelow;
    forEachRange(
        [&](double range)
        {
            double value = 0.0;
            for (double const coefficient : coefficients)
            {
                value = value * range + coefficient;
            }
            isBelow = isBelow && value < 0.0;
            isAbove = isAbove && value > 1.0;
            return isBelow || isAbove;
        });
    return isBelow ? "below 0" : isAbove ? "above 1" : "";
}

std::string spelled(double value)
{
    std::string text;
    axAppendReal(text, value);
    return text;
}

AxlObj const* itemOf(AxlObj const& list, std::string_view head)
{
    for (AxlObj const* rest = list.cdr(); rest->isPair(); rest = rest->cdr())
    {
        if (rest->car()->car()->text() == head)
        {
            return rest->car();
        }
    }
    return nullptr;
}

void checkRangeList(AxlObj const& list, CellReport const& report)
{
    std::vector<Row> rows;
    for (AxlObj const* rest = list.cdr(); rest->isPair(); rest = rest->cdr())
    {
        AxlObj const* const range = rest->car()->cdr()->car();
        if (range->isNumber())
        {
            rows.push_back(readRow(*range, rest->car()->cdr()->cdr(), report));
        }
    }
    if (list.cdr()->nil())
    {
        report("empty-table", list, "a range list without rows never answers");
    }
    checkOrder(rows, report);
    checkOutcomes(rows, report);
}

void checkCoefficients(AxlObj const& list, CellReport const& report)
{
    if (list.cdr()->nil())
    {
        report("empty-table", list, "coefficients without an outcome never answer");
    }
    for (AxlObj const* rest = list.cdr(); rest->isPair(); rest = rest->cdr())
    {
        AxlObj const& first = *rest->car()->cdr()->car();
        std::vector<double> coefficients;
        for (AxlObj const* number = rest->car()->cdr(); first.isNumber() && number->isPair(); number = number->cdr())
        {
            coefficients.push_back(number->car()->flonum());
        }
        std::string const extent = extentOutside(coefficients);
        if (!extent.empty())
        {
            report("out-of-range", first,
                   "probability of \"" + std::string(rest->car()->car()->text()) + "\" is " + extent +
                       " at every range, expected 0 to 1");
        }
    }
}

void forEachRange(std::function<bool(double range)> const& goOn)
{
    constexpr double closest = 0.1;
    constexpr double farthest = 1e5;
    constexpr double growth = 1.1;
    double range = 0.0;
    while (range < farthest && goOn(range))
    {
        range = std::max(closest, range * growth);
    }
}

void checkRows(std::string const& file, CheckedFiles& files, Findings& findings)
{
    if (files.enterRows(file))
    {
        checkRows(file, files.source(file), findings);
    }
}

void checkRows(std::string const& file, Source const& source, Findings& findings)
{
    CellReport const report = [&](char const* code, AxlObj const& place, std::string text)
    {
        AxDiagnostic finding;
        finding.severity = AxSeverity::Warning;
        finding.code = code;
        finding.file = file;
        finding.text = std::move(text);
        Source::setPlace(finding, &place);
        findings.add(std::move(finding));
    };
    AxSourceScope const scope{AxFilename(file)};
    auto const isDamageTable = [&](AxlObj const& list) {
        return list.car()->text().ends_with("-damage-file") ||
               (file.ends_with(".dmg") && &list == &source.expression());
    };
    source.forEachList(
        [&](AxlObj const& list)
        {
            AxlObj const& first = *list.cdr()->car();
            bool const isDeterminant = list.car()->text() == "range-determinant";
            if (isDeterminant && first.car()->text() == "range-list")
            {
                checkRangeList(first, report);
            }
            else if (isDeterminant && first.car()->text() == "coefficients")
            {
                checkCoefficients(first, report);
            }
            else
            {
                checkSurface(list, report);
                checkSurfaces(list, isDamageTable(list), report);
                checkElements(list, report);
            }
        });
}
