#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Curves.h"

class TableFile;

struct PlotLine
{
    std::size_t subject; ///< its place in the legend
    bool isSecond;       ///< of the second version of the table
    bool isStep;
    std::vector<CurvePoint> points;
};

struct PlotPanel
{
    std::string outcome;
    std::vector<PlotLine> lines;
};

/// Curves with common axes: a panel for each outcome, from 0 to 1 over ranges from 0 to `end` metres.
struct Plot
{
    std::vector<std::string> versions; ///< one file, or two
    std::vector<std::string> subjects;
    std::vector<PlotPanel> panels;
    double end = 1.0;
    double tick = 0.2; ///< metres between the marks of the range
};

/// Of one table, or of two that are to be compared.
Plot makePlot(std::vector<std::unique_ptr<TableFile>> const& tables);

/// What marks a subject where colour does not tell: "a" to "z", then "a2".
std::string subjectMark(std::size_t subject);
/// The probability at a range, on the way between the points; of the points of a step the first.
double heightAt(PlotLine const& line, double range);
/// The range at which a line of the panel bears its mark: apart from those of the others, where the line is above 0.
double markRange(PlotPanel const& panel, std::size_t line);
