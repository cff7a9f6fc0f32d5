#include "Plot.h"

#include <algorithm>
#include <cmath>

#include "ShownPath.h"
#include "TableFile.h"

namespace
{
/// The place of the text, which is appended when it is not there yet.
std::size_t placeOf(std::vector<std::string>& texts, std::string const& text)
{
    auto const found = std::ranges::find(texts, text);
    auto const place = static_cast<std::size_t>(found - texts.begin());
    if (found == texts.end())
    {
        texts.push_back(text);
    }
    return place;
}

PlotPanel& panelFor(Plot& plot, std::string const& outcome)
{
    auto const found = std::ranges::find(plot.panels, outcome, &PlotPanel::outcome);
    return found != plot.panels.end() ? *found : plot.panels.emplace_back(PlotPanel{outcome, {}});
}

/// 1, 2 or 5 times a power of ten, such that four to ten of it make `length`.
double tickFor(double length)
{
    double const power = std::pow(10.0, std::floor(std::log10(length)) - 1.0);
    for (double const step : {1.0, 2.0, 5.0, 10.0, 20.0})
    {
        if (length / (step * power) <= 8.0)
        {
            return step * power;
        }
    }
    return length;
}
} // namespace

Plot makePlot(std::vector<std::unique_ptr<TableFile>> const& tables)
{
    Plot plot;
    double reach = 0.0;
    for (auto const& table : tables)
    {
        plot.versions.push_back(shownPath(table->file()));
        reach = std::max(reach, reachOf(*table));
    }
    constexpr double theUsualSight = 1000.0;
    constexpr double theUsualMiss = 1.0;
    bool const isDamage = !tables.empty() && tables.front()->kind() != TableKind::Probabilities;
    double const length = std::isnormal(reach) ? reach : isDamage ? theUsualMiss : theUsualSight;
    plot.tick = tickFor(length);
    plot.end = (std::floor(length / plot.tick) + 1.0) * plot.tick;
    for (std::size_t i = 0; i < tables.size(); ++i)
    {
        for (Curve& curve : curvesOf(*tables[i], plot.end))
        {
            std::size_t const subject = placeOf(plot.subjects, curve.subject);
            panelFor(plot, curve.outcome).lines.push_back({subject, i == 1, curve.isStep, std::move(curve.points)});
        }
    }
    return plot;
}

std::string subjectMark(std::size_t subject)
{
    constexpr std::size_t theLetters = 26;
    std::string mark(1, static_cast<char>('a' + subject % theLetters));
    return subject < theLetters ? mark : mark + std::to_string(subject / theLetters + 1);
}

double heightAt(PlotLine const& line, double range)
{
    for (std::size_t i = 0; i < line.points.size(); ++i)
    {
        CurvePoint const& point = line.points[i];
        if (point.range >= range)
        {
            CurvePoint const& before = line.points[i == 0 ? 0 : i - 1];
            double const width = point.range - before.range;
            double const part = width > 0.0 ? (range - before.range) / width : 1.0;
            return before.probability + part * (point.probability - before.probability);
        }
    }
    return line.points.empty() ? 0.0 : line.points.back().probability;
}

double markRange(PlotPanel const& panel, std::size_t line)
{
    std::vector<CurvePoint> const& points = panel.lines[line].points;
    auto const above =
        std::find_if(points.rbegin(), points.rend(), [](CurvePoint const& p) { return p.probability > 0.0; });
    double const reach = above != points.rend() ? above->range : points.empty() ? 0.0 : points.back().range;
    return reach * (static_cast<double>(line) + 0.5) / static_cast<double>(panel.lines.size());
}
