#include "Plot.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "AxPrbTableRangeDeterminant.h"
#include "AxRangeProbabilityTable.h"
#include "TableFile.h"

namespace
{
std::unique_ptr<TableFile> exampleTable(std::string const& name)
{
    return TableFile::open(ZEDOBJPARAM_SOURCE_DIR "/examples/force/" + name);
}

Plot plotOf(std::vector<std::string> const& names)
{
    std::vector<std::unique_ptr<TableFile>> tables;
    for (std::string const& name : names)
    {
        tables.push_back(exampleTable(name));
    }
    return makePlot(tables);
}
} // namespace

TEST(Plot, CurvesGoThroughWhatTheTableAnswers)
{
    for (char const* name :
         {"hit/gun-120mm.hit", "hit/rifle.hit", "detection/thermal-sight.det", "detection/sonar.det"})
    {
        std::unique_ptr<TableFile> const file = exampleTable(name);
        Plot const plot = plotOf({name});
        ASSERT_FALSE(plot.panels.empty());
        auto const& table = file->as<AxRangeProbabilityTable>();
        for (AxListItem const* item = table.first(); item != nullptr; item = item->next())
        {
            auto const& entry = *static_cast<AxRangeProbEntry const*>(AxRwList::element(item));
            std::string const subject = entry.entityType().string().string();
            for (PlotPanel const& panel : plot.panels)
            {
                for (PlotLine const& line : panel.lines)
                {
                    for (int i = 0; i <= 1000 && plot.subjects[line.subject] == subject; ++i)
                    {
                        double const range = plot.end * i / 1000;
                        AxPrbRangeTableEntry row;
                        entry.getProbabilities(range, &row);
                        EXPECT_NEAR(heightAt(line, range), row.probability(panel.outcome), line.isStep ? 1e-9 : 0.01)
                            << name << " " << subject << " " << panel.outcome << " at " << range;
                    }
                }
            }
        }
    }
}

TEST(Plot, TwoVersionsShareAxesAndLegend)
{
    Plot const one = plotOf({"hit/gun-125mm.hit"});
    Plot const both = plotOf({"hit/gun-125mm.hit", "hit/gun-120mm.hit"});
    EXPECT_GT(both.end, one.end);
    EXPECT_EQ(both.subjects, one.subjects);
    ASSERT_EQ(both.panels.size(), 1U);
    EXPECT_EQ(both.panels[0].lines.size(), 2 * one.panels[0].lines.size());
}

TEST(Plot, MarksStandWhereALineIsAboveZero)
{
    Plot const plot = plotOf({"damage/heat-on-tank.dmg"});
    for (PlotPanel const& panel : plot.panels)
    {
        for (std::size_t i = 0; i < panel.lines.size(); ++i)
        {
            EXPECT_GT(heightAt(panel.lines[i], markRange(panel, i)), 0.0) << panel.outcome << " " << i;
        }
    }
    EXPECT_EQ(subjectMark(0) + subjectMark(25) + subjectMark(26), "aza2");
}
