#include "PlotSvg.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "Markup.h"
#include "Plot.h"

namespace
{
// Seen apart by all kinds of sight, and against white as well as against black.
constexpr char const* theSvgColours[] = {"#2878c8", "#c25a00", "#168552", "#9b51c9", "#d13a63", "#7a7012"};

constexpr double theSvgWidth = 760.0;
constexpr double theLeft = 56.0;
constexpr double theRight = 20.0;
constexpr double theTop = 34.0; // of the curves below the top of their panel
constexpr double thePanelHeight = 190.0;
constexpr double theBelow = 46.0;
constexpr double theLegendRow = 22.0;

class PlotSvg
{
public:
    PlotSvg(Plot const& plot, bool isAlone) : myPlot(plot), myIsAlone(isAlone) {}

    std::string draw()
    {
        double const panel = theTop + thePanelHeight + theBelow;
        auto const rows = static_cast<double>(myPlot.subjects.size() + (myPlot.versions.size() > 1 ? 2 : 0));
        double const legend = static_cast<double>(myPlot.panels.size()) * panel;
        begin(legend + rows * theLegendRow + 12.0);
        for (PlotPanel const& each : myPlot.panels)
        {
            drawPanel(each);
            myY += panel;
        }
        drawLegend();
        return myOut + "</svg>\n";
    }

private:
    void begin(double height)
    {
        std::string title = "Probability by range: ";
        for (std::string const& version : myPlot.versions)
        {
            title += (&version == &myPlot.versions.front() ? "" : " and ") + version;
        }
        myOut += "<svg xmlns=\"http://www.w3.org/2000/svg\" class=\"plot\" role=\"img\" viewBox=\"0 0 " +
                 drawn(theSvgWidth) + " " + drawn(height) + "\" width=\"" + drawn(theSvgWidth) + "\" height=\"" +
                 drawn(height) + "\" font-family=\"sans-serif\" font-size=\"13\" fill=\"none\"" +
                 (myIsAlone ? " color=\"#222\"" : "") + ">\n<title>" + markup(title) + "</title>\n";
        if (myIsAlone)
        {
            myOut += "<rect width=\"100%\" height=\"100%\" fill=\"#fff\"/>\n";
        }
    }

    static double x(double part) { return theLeft + part * (theSvgWidth - theLeft - theRight); }
    double xOf(double range) const { return x(range / myPlot.end); }
    double yOf(double probability) const { return myY + theTop + (1.0 - probability) * thePanelHeight; }

    void text(double xPlace, double yPlace, char const* anchor, std::string const& content, char const* more = "")
    {
        myOut += "<text x=\"" + drawn(xPlace) + "\" y=\"" + drawn(yPlace) + "\" text-anchor=\"" + anchor +
                 "\" fill=\"currentColor\"" + more + ">" + markup(content) + "</text>\n";
    }

    void line(double x1, double y1, double x2, double y2, char const* more)
    {
        myOut +=
            "<path d=\"M" + drawn(x1) + " " + drawn(y1) + "L" + drawn(x2) + " " + drawn(y2) + "\" " + more + "/>\n";
    }

    void drawPanel(PlotPanel const& panel)
    {
        text(theLeft, myY + 20.0, "start", panel.outcome, " font-weight=\"bold\"");
        constexpr char const* theGrid = "class=\"grid\" stroke=\"currentColor\" stroke-opacity=\"0.2\"";
        for (int quarter = 0; quarter <= 4; ++quarter)
        {
            double const y = yOf(quarter / 4.0);
            line(theLeft, y, x(1.0), y, theGrid);
            text(theLeft - 8.0, y + 4.5, "end", drawn(quarter / 4.0));
        }
        auto const ticks = static_cast<int>(std::lround(myPlot.end / myPlot.tick));
        for (int tick = 0; tick <= ticks; ++tick)
        {
            double const range = tick * myPlot.tick;
            line(xOf(range), yOf(0.0), xOf(range), yOf(0.0) + 5.0, "stroke=\"currentColor\"");
            text(xOf(range), yOf(0.0) + 19.0, "middle", drawn(range));
        }
        line(theLeft, yOf(0.0), x(1.0), yOf(0.0), "stroke=\"currentColor\"");
        text(x(1.0), yOf(0.0) + 36.0, "end", "range, m");
        text(x(1.0), myY + 20.0, "end", "probability, 0 to 1");
        for (PlotLine const& each : panel.lines)
        {
            drawLine(each);
        }
        for (std::size_t i = 0; i < panel.lines.size(); ++i)
        {
            double const range = markRange(panel, i);
            drawMark(xOf(range), yOf(clamped(heightAt(panel.lines[i], range))), panel.lines[i].subject);
        }
    }

    static double clamped(double probability) { return std::clamp(probability, -0.05, 1.05); }

    static std::string stroke(std::size_t subject, bool isSecond)
    {
        return std::string("stroke=\"") + theSvgColours[subject % std::size(theSvgColours)] + "\" stroke-width=\"2\"" +
               (isSecond ? " stroke-dasharray=\"7 5\"" : "");
    }

    void drawLine(PlotLine const& each)
    {
        std::string path;
        for (CurvePoint const& point : each.points)
        {
            path += (path.empty() ? "M" : "L") + drawn(xOf(std::min(point.range, myPlot.end))) + " " +
                    drawn(yOf(clamped(point.probability)));
        }
        myOut += "<path d=\"" + path + "\" " + stroke(each.subject, each.isSecond) + "/>\n";
    }

    void drawMark(double xPlace, double yPlace, std::size_t subject)
    {
        myOut += "<circle class=\"mark\" cx=\"" + drawn(xPlace) + "\" cy=\"" + drawn(yPlace) +
                 "\" r=\"8.5\" fill=\"#fff\" " + stroke(subject, false) + "/>\n";
        text(xPlace, yPlace + 4.0, "middle", subjectMark(subject), " font-size=\"11\"");
    }

    void drawLegend()
    {
        double y = myY + theLegendRow / 2.0;
        for (std::size_t i = 0; i < myPlot.subjects.size(); ++i, y += theLegendRow)
        {
            line(theLeft, y, theLeft + 44.0, y, stroke(i, false).c_str());
            drawMark(theLeft + 22.0, y, i);
            text(theLeft + 56.0, y + 4.5, "start", myPlot.subjects[i]);
        }
        for (std::size_t i = 0; i < myPlot.versions.size() && myPlot.versions.size() > 1; ++i, y += theLegendRow)
        {
            line(theLeft, y, theLeft + 44.0, y,
                 i == 0 ? "stroke=\"currentColor\" stroke-width=\"2\""
                        : "stroke=\"currentColor\" stroke-width=\"2\" stroke-dasharray=\"7 5\"");
            text(theLeft + 56.0, y + 4.5, "start", myPlot.versions[i]);
        }
    }

    Plot const& myPlot;
    bool myIsAlone;
    double myY = 0.0; // top of the panel that is drawn
    std::string myOut;
};
} // namespace

std::string plotSvg(Plot const& plot, bool isAlone)
{
    return PlotSvg(plot, isAlone).draw();
}
