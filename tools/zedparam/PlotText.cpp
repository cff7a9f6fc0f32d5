#include "PlotText.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <iterator>

#include "Markup.h"
#include "Plot.h"

namespace
{
constexpr int theColumns = 64;
constexpr int theRows = 13;
constexpr int theDotColumns = 2; // of one character
constexpr int theDotRows = 4;

/// The lines of one panel, in dots or in letters.
class Canvas
{
public:
    void plotDot(int column, int row, int colour)
    {
        if (column < 0 || column >= theColumns * theDotColumns || row < 0 || row >= theRows * theDotRows)
        {
            return;
        }
        constexpr unsigned char theBits[theDotRows][theDotColumns] = {
            {0x01, 0x08}, {0x02, 0x10}, {0x04, 0x20}, {0x40, 0x80}};
        Cell& cell = at(column / theDotColumns, row / theDotRows);
        cell.dots |= theBits[row % theDotRows][column % theDotColumns];
        cell.colour = colour;
    }
    void plotLetter(int column, int row, char letter, int colour)
    {
        Cell& cell = at(std::clamp(column, 0, theColumns - 1), std::clamp(row, 0, theRows - 1));
        cell.letter = letter;
        cell.colour = colour;
    }

    std::string rowText(int row, PlotStyle style) const
    {
        std::string text;
        int last = theColumns;
        while (last > 0 && myCells[index(last - 1, row)].isEmpty())
        {
            --last;
        }
        for (int column = 0; column < last; ++column)
        {
            Cell const& cell = myCells[index(column, row)];
            std::string const sign = cell.letter != '\0' ? std::string(1, cell.letter)
                                     : cell.dots != 0    ? braille(cell.dots)
                                                         : " ";
            text += style == PlotStyle::Coloured && !cell.isEmpty() ? coloured(sign, cell.colour) : sign;
        }
        return text;
    }

    static std::string coloured(std::string const& text, int colour)
    {
        constexpr int theColours[] = {36, 33, 32, 35, 31, 34};
        return "\033[" + std::to_string(theColours[static_cast<std::size_t>(colour) % std::size(theColours)]) + "m" +
               text + "\033[0m";
    }

private:
    struct Cell
    {
        unsigned char dots = 0;
        char letter = '\0';
        int colour = 0;
        bool isEmpty() const { return dots == 0 && letter == '\0'; }
    };

    static std::size_t index(int column, int row) { return static_cast<std::size_t>(row * theColumns + column); }
    Cell& at(int column, int row) { return myCells[index(column, row)]; }

    /// U+2800 and the dots.
    static std::string braille(unsigned char dots)
    {
        return {'\xE2', static_cast<char>(0xA0 | (dots >> 6)), static_cast<char>(0x80 | (dots & 0x3F))};
    }

    std::array<Cell, static_cast<std::size_t>(theColumns* theRows)> myCells;
};

/// Small letters for the first version, capitals for the second.
char letterOf(PlotLine const& line)
{
    char const letter = subjectMark(line.subject).front();
    return line.isSecond ? static_cast<char>(std::toupper(static_cast<unsigned char>(letter))) : letter;
}

int rowOf(double probability, int rows)
{
    return static_cast<int>(std::lround((1.0 - std::clamp(probability, 0.0, 1.0)) * (rows - 1)));
}

/// Curves that meet take turns, so that each is seen.
void drawLetters(PlotPanel const& panel, double end, Canvas& canvas)
{
    std::size_t const lines = panel.lines.size();
    for (int column = 0; column < theColumns; ++column)
    {
        double const range = end * (column + 0.5) / theColumns;
        for (std::size_t i = 0; i < lines; ++i)
        {
            PlotLine const& line = panel.lines[(i + static_cast<std::size_t>(column)) % lines];
            canvas.plotLetter(column, rowOf(heightAt(line, range), theRows), letterOf(line), 0);
        }
    }
}

void drawDots(PlotPanel const& panel, double end, Canvas& canvas)
{
    constexpr int theWidth = theColumns * theDotColumns;
    constexpr int theHeight = theRows * theDotRows;
    for (PlotLine const& line : panel.lines)
    {
        int before = rowOf(heightAt(line, 0.0), theHeight);
        for (int column = 0; column < theWidth; ++column)
        {
            int const row = rowOf(heightAt(line, end * (column + 0.5) / theWidth), theHeight);
            bool const isGap = line.isSecond && column % 4 >= 2;
            for (int dot = std::min(row, before); dot <= std::max(row, before) && !isGap; ++dot)
            {
                bool const isWay = dot != row && dot == before;
                canvas.plotDot(column, isWay ? row : dot, static_cast<int>(line.subject));
            }
            before = row;
        }
    }
    for (std::size_t i = 0; i < panel.lines.size(); ++i)
    {
        PlotLine const& line = panel.lines[i];
        double const range = markRange(panel, i);
        canvas.plotLetter(static_cast<int>(range / end * theColumns),
                          rowOf(heightAt(line, range), theHeight) / theDotRows, letterOf(line),
                          static_cast<int>(line.subject));
    }
}

/// The line with the marks of the range below it.
std::string axis(Plot const& plot, bool isPlain)
{
    std::string line = isPlain ? "     +" : "     └";
    std::string numbers(6, ' ');
    auto const ticks = static_cast<int>(std::lround(plot.end / plot.tick));
    int drawnColumns = 0;
    for (int tick = 1; tick <= ticks; ++tick)
    {
        int const column = static_cast<int>(std::lround(static_cast<double>(tick) / ticks * theColumns));
        for (; drawnColumns < column - 1; ++drawnColumns)
        {
            line += isPlain ? "-" : "─";
        }
        line += isPlain ? "+" : "┴";
        ++drawnColumns;
        std::string const number = drawn(tick * plot.tick);
        std::size_t const start = 6 + static_cast<std::size_t>(column) - std::min<std::size_t>(number.size(), 6);
        numbers.resize(std::max(numbers.size() + 1, start), ' ');
        numbers += number;
    }
    return line + "\n" + numbers + " m\n";
}
} // namespace

std::string plotText(Plot const& plot, PlotStyle style)
{
    std::string text;
    for (PlotPanel const& panel : plot.panels)
    {
        Canvas canvas;
        style == PlotStyle::Plain ? drawLetters(panel, plot.end, canvas) : drawDots(panel, plot.end, canvas);
        text += "probability of " + panel.outcome + "\n";
        for (int row = 0; row < theRows; ++row)
        {
            bool const isLabelled = row % ((theRows - 1) / 4) == 0;
            std::string label = isLabelled ? drawn(1.0 - static_cast<double>(row) / (theRows - 1)) : "";
            label.insert(0, 5 - label.size(), ' ');
            text += label +
                    (style == PlotStyle::Plain ? "|"
                     : isLabelled              ? "┤"
                                               : "│") +
                    canvas.rowText(row, style) + "\n";
        }
        text += axis(plot, style == PlotStyle::Plain) + "\n";
    }
    for (std::size_t i = 0; i < plot.subjects.size(); ++i)
    {
        std::string const mark = subjectMark(i);
        text += (style == PlotStyle::Coloured ? Canvas::coloured(mark, static_cast<int>(i)) : mark) + "  " +
                plot.subjects[i] + "\n";
    }
    if (plot.versions.size() > 1)
    {
        text += "small letters: " + plot.versions[0] + "\ncapital letters: " + plot.versions[1] + "\n";
    }
    return text;
}
