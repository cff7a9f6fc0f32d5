#include "ReportTable.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "AxAmmoSelectTable.h"
#include "AxTargetPriorityList.h"
#include "Curves.h"
#include "Markup.h"
#include "MunitionText.h"
#include "Plot.h"
#include "PlotSvg.h"
#include "ReportPage.h"
#include "TableFile.h"
#include "Units.h"

namespace
{
std::string tableHead(std::string_view caption, std::vector<std::string> const& heads)
{
    std::string out = "<div class=\"scroll\"><table><caption>" + markup(caption) + "</caption>\n<thead><tr>";
    for (std::string const& head : heads)
    {
        out += "<th scope=\"col\">" + markup(head) + "</th>";
    }
    return out + "</tr></thead>\n<tbody>\n";
}

constexpr char theTableEnd[] = "</tbody></table></div>\n";

/// The values where the curves bend, a row for each range.
std::string numbersOf(Plot const& plot, std::size_t subject)
{
    std::vector<PlotLine const*> lines;
    std::vector<std::string> heads;
    std::vector<double> ranges;
    for (PlotPanel const& panel : plot.panels)
    {
        for (PlotLine const& line : panel.lines)
        {
            if (line.subject != subject)
            {
                continue;
            }
            lines.push_back(&line);
            heads.push_back(panel.outcome);
            for (CurvePoint const& point : line.points)
            {
                ranges.push_back(point.range);
            }
        }
    }
    std::ranges::sort(ranges);
    ranges.erase(std::unique(ranges.begin(), ranges.end()), ranges.end());
    constexpr std::size_t theSamples = 10; // of a polynomial
    bool const isStep = std::ranges::any_of(lines, &PlotLine::isStep);
    heads.insert(heads.begin(), isStep ? "Range up to, m" : "Range, m");
    std::size_t const stride = isStep ? 1 : std::max<std::size_t>(1, ranges.size() / theSamples);
    std::string out = tableHead("Probabilities for " + plot.subjects[subject], heads);
    for (std::size_t i = isStep && ranges.size() > 1 ? 1 : 0; i < ranges.size(); i += stride)
    {
        out += "<tr><th scope=\"row\">" + (isStep && i + 1 == ranges.size() ? "beyond" : drawn(ranges[i])) + "</th>";
        for (PlotLine const* line : lines)
        {
            out += "<td>" + tidied(heightAt(*line, ranges[i])) + "</td>";
        }
        out += "</tr>\n";
    }
    return out + theTableEnd;
}

std::string curvesOf(std::unique_ptr<TableFile> table)
{
    std::vector<std::unique_ptr<TableFile>> tables;
    tables.push_back(std::move(table));
    Plot const plot = makePlot(tables);
    if (plot.panels.empty())
    {
        return "<p>The table is empty.</p>\n";
    }
    std::string out = "<h2>Curves</h2>\n<figure class=\"scroll\">\n" + plotSvg(plot, false) +
                      "</figure>\n<h2>Numbers</h2>\n<p>Of a step table each row holds for ranges from above the one "
                      "before it; of polynomials some values are given.</p>\n";
    for (std::size_t subject = 0; subject < plot.subjects.size(); ++subject)
    {
        out += numbersOf(plot, subject);
    }
    return out;
}

std::string ammunitionOf(AxAmmoSelectTable const& table)
{
    std::string out =
        "<h2>Choices</h2>\n" + tableHead("Munitions by target, the first choice first", {"Target", "Munitions"});
    for (AxAmmoSelectEntry const* entry : table)
    {
        out += "<tr><th scope=\"row\">" + htmlCode(entry->targetType().string().string()) + "</th><td>";
        for (AxSimMunition const* munition : entry->simMunitionList())
        {
            out += markup(munitionText(*munition)) + "<br>";
        }
        out += "</td></tr>\n";
    }
    return out + theTableEnd;
}

std::string prioritiesOf(AxTargetPriorityList const& table)
{
    std::string out = "<h2>Priorities</h2>\n" + tableHead("A greater number is preferred", {"Target", "Priority"});
    for (AxTargetPriorityEntry const* entry : table)
    {
        out += "<tr><th scope=\"row\">" + htmlCode(entry->entityType().string().string()) + "</th><td>" +
               std::to_string(entry->priority()) + "</td></tr>\n";
    }
    return out + theTableEnd;
}
} // namespace

std::string reportTable(std::string const& file)
{
    std::string out;
    bool wasRead = false;
    if (file.ends_with(".frm"))
    {
        out = "<p>A formation of a unit.</p>\n";
    }
    else if (std::unique_ptr<TableFile> table = TableFile::open(file))
    {
        wasRead = true;
        out = table->kind() == TableKind::Ammunition   ? ammunitionOf(table->as<AxAmmoSelectTable>())
              : table->kind() == TableKind::Priorities ? prioritiesOf(table->as<AxTargetPriorityList>())
                                                       : curvesOf(std::move(table));
    }
    return out + "<h2>Text</h2>\n" + htmlSource(file, wasRead);
}
