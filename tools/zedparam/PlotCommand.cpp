#include "Commands.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

#include "Colour.h"
#include "CommandLine.h"
#include "Findings.h"
#include "Plot.h"
#include "PlotSvg.h"
#include "PlotText.h"
#include "TableFile.h"
#include "WriteFile.h"

namespace
{
struct PlotOptions
{
    std::vector<std::string> files;
    std::string table;
    std::string output;
    std::string style = "auto";
};

/// Whether the locale of the environment writes UTF-8.
bool isUtf8Locale()
{
    for (char const* name : {"LC_ALL", "LC_CTYPE", "LANG"})
    {
        char const* const value = std::getenv(name);
        if (value != nullptr && *value != '\0')
        {
            std::string_view const locale(value);
            return locale.find("UTF-8") != std::string_view::npos || locale.find("utf8") != std::string_view::npos;
        }
    }
    return false;
}

PlotStyle styleFor(std::string const& wish)
{
    bool const isTerminal = isatty(STDOUT_FILENO) != 0;
    if (wish == "plain" || (wish == "auto" && !(isTerminal && isUtf8Locale())))
    {
        return PlotStyle::Plain;
    }
    return mayColour() ? PlotStyle::Coloured : PlotStyle::Unicode;
}

int plot(PlotOptions const& options)
{
    Findings findings(Findings::Print::AtOnce);
    std::vector<std::unique_ptr<TableFile>> tables;
    for (std::string const& file : options.files)
    {
        tables.push_back(TableFile::open(file, options.table));
        if (tables.back() == nullptr)
        {
            return CouldNotRun;
        }
    }
    auto const isMeant = [&](std::unique_ptr<TableFile> const& table) { return table->isNamed(options.table); };
    if (std::ranges::none_of(tables, isMeant))
    {
        std::fprintf(stderr, "zedparam: --table: %s is one table, \"%s\", not \"%s\"\n", options.files.front().c_str(),
                     tables.front()->name().c_str(), options.table.c_str());
        return CouldNotRun;
    }
    Plot const drawing = makePlot(tables);
    if (drawing.panels.empty())
    {
        std::fprintf(stderr,
                     "zedparam: %s holds no probabilities by range; expected a hit, detection or damage table\n",
                     options.files.front().c_str());
        return CouldNotRun;
    }
    if (!options.output.empty())
    {
        if (!writeMade(options.output, plotSvg(drawing, true), options.files))
        {
            return CouldNotRun;
        }
    }
    else
    {
        std::fputs(plotText(drawing, styleFor(options.style)).c_str(), stdout);
    }
    return findings.empty() ? Fine : HasFindings;
}
} // namespace

void addPlotCommand(CommandLine& line)
{
    auto const options = std::make_shared<PlotOptions>();
    line.add("plot", "Draws the probabilities of a table by range, or of two of its versions.",
             [options] { return plot(*options); })
        .required("FILE", options->files,
                  "A hit, detection or damage table (.hit, .det, .dmg), or a file with one inside; two: one drawing "
                  "of both")
        .atMost(2)
        .optional("--table", options->table, "Which table of the file, by its keyword, when there are several")
        .optional("-o,--output", options->output, "Write an SVG file instead of drawing in characters")
        .optional("--style", options->style,
                  "plain (ASCII), unicode, or auto: unicode on a terminal that has it, else plain")
        .oneOf({"auto", "plain", "unicode"});
}
