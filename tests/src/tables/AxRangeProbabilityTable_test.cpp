#include "AxRangeProbabilityTable.h"

#include "AxDetectionPrbRangeCalcEntry.h"
#include "AxDetectionPrbRangeLookupEntry.h"
#include "AxSinkScope.h"

#include <gtest/gtest.h>

#include <random>

namespace
{
char const* const gunHit = R"((gun-hit
  (entity-range (entity-type 1 1 -1 -1 -1 -1 -1) (range-determinant (range-list
    (range-entry 500.0 (hit 0.9)) (range-entry 1000.0 (hit 0.6)) (range-entry 500.0 (hit 0.85)))))
  (entity-range (entity-type 1 1 225 1 1 3 0) (range-determinant (range-list (range-entry 2000.0 (hit 0.3)))))
  (entity-range (entity-type 1 1 225 -1 -1 -1 -1) (range-determinant (coefficients (hit -0.0005 1.0))))
  (entity-range (entity-type 1 2 -1 -1 -1 -1 -1) (range-determinant (spline 1 2)))))";

class HitTable : public AxRangeProbabilityTable
{
public:
    using AxRangeProbabilityTable::AxRangeProbabilityTable;
    using AxRangeProbabilityTable::lookupDetectProbEntry;

    explicit HitTable(char const* text) : AxRangeProbabilityTable(AxSymbolString(), nullptr)
    {
        AxSinkScope quiet(AxWarn);
        readText(text, "gun.hit", nullFilenames(), nullVariableReference());
        warnings = quiet.text();
    }
    std::string warnings;
};
} // namespace

TEST(AxRangeProbabilityTable, AnswersByTypeAndRange)
{
    HitTable const table(gunHit);
    AxEntityType const patternOfAll(1, 1, -1, -1, -1, -1, -1);
    AxEntityType const patternOf225(1, 1, 225, -1, -1, -1, -1);
    AxEntityType const exact(1, 1, 225, 1, 1, 3, 0);
    struct
    {
        AxEntityType asked;
        double range;
        AxEntityType matched;
        double row;
        double hit;
    } const cases[] = {
        {{1, 1, 222, 1, 2, 1, 0}, 50.0, patternOfAll, 500.0, 0.85},
        {{1, 1, 222, 1, 2, 1, 0}, 500.0, patternOfAll, 500.0, 0.85},
        {{1, 1, 222, 1, 2, 1, 0}, 500.5, patternOfAll, 1000.0, 0.6},
        {{1, 1, 222, 1, 2, 1, 0}, 1001.0, patternOfAll, 1001.0, 0.0},
        {exact, 1500.0, exact, 2000.0, 0.3},
        {{1, 1, 225, 1, 1, 2, 0}, 1200.0, patternOf225, 1200.0, 0.4},
        {{1, 1, 225, 1, 1, 2, 0}, 3000.0, patternOf225, 3000.0, 0.0},
    };
    AxPrbRangeTableEntry out;
    for (auto const& c : cases)
    {
        AxEntityType matched;
        ASSERT_TRUE(table.getProbabilities(c.asked, c.range, &out, &matched)) << c.range;
        EXPECT_EQ(matched, c.matched) << c.range;
        EXPECT_EQ(out.range(), c.row);
        EXPECT_DOUBLE_EQ(out.probability("hit"), c.hit) << c.range;
        EXPECT_EQ(out.count(), 1) << c.range;
        EXPECT_EQ(out.probability("burn"), 0.0);
    }
}

TEST(AxRangeProbabilityTable, MissLeavesEverythingAsItIs)
{
    HitTable const table(gunHit);
    AxPrbRangeTableEntry out(7.0);
    out.addProbability("hit", 0.5);
    AxEntityType matched(9, 9, 9, 9, 9, 9, 9);
    AxSinkScope warnings(AxWarn);
    EXPECT_FALSE(table.getProbabilities({1, 2, 225, 1, 1, 1, 0}, 100.0, &out, &matched));
    EXPECT_EQ(out.writtenText(), "(range-entry 7.0 (hit 0.5))\n");
    EXPECT_EQ(matched.kind(), 9);
    EXPECT_EQ(warnings.text(), "");
}

TEST(AxRangeProbabilityTable, ReportsAndKeepsElementsOfUnknownDeterminants)
{
    HitTable table(gunHit);
    EXPECT_EQ(table.count(), 3);
    EXPECT_EQ(table.warnings, "Unrecognized range determinant spline in detect prob table\n");
    EXPECT_NE(
        table.writtenText().find("(entity-range (entity-type 1 2 -1 -1 -1 -1 -1) (range-determinant (spline 1 2))))\n"),
        std::string::npos);
    EXPECT_EQ(HitTable("(t (entity-range (entity-type 1 1 1 1 1 1 1)))").warnings,
              "Unrecognized range determinant  in detect prob table\n");
}

TEST(AxRangeProbabilityTable, WritesWhatItReads)
{
    HitTable table("(hit (x (entity-type 1 1 -1 -1 -1 -1 -1) (range-determinant (range-list)))"
                   "(entity-range (range-determinant (coefficients (hit 0.5)))))");
    std::string const text = "(hit\n"
                             "  (entity-range\n"
                             "    (entity-type 1 1 -1 -1 -1 -1 -1)\n"
                             "    (range-determinant\n"
                             "      (range-list)))\n"
                             "  (entity-range\n"
                             "    (range-determinant\n"
                             "      (coefficients\n"
                             "        (hit 0.5)))))\n";
    EXPECT_EQ(table.writtenText(), text);
    EXPECT_EQ(HitTable(text.c_str()).writtenText(), text);
    AxRangeProbabilityTable const copy(table);
    EXPECT_TRUE(copy == table);
    EXPECT_EQ(copy.writtenText(), text);
}

TEST(AxRangeProbabilityTable, WhatIsKeptInADeterminantDoesNotTellItsKindLater)
{
    for (char const* const text :
         {"(hit (x (range-determinant (range-list)) (range-determinant (coefficients (hit 1)))))",
          "(hit (x (range-determinant (range-list)) (range-determinant (spline 1))))",
          "(hit (x (range-determinant coefficients (range-list))))",
          "(hit (x (range-determinant (coefficients)) (range-determinant (range-list) 1)))"})
    {
        HitTable table(text);
        std::string const written = table.writtenText();
        ASSERT_EQ(table.count(), 1) << written;
        HitTable again(written.c_str());
        ASSERT_EQ(again.count(), 1) << written;
        EXPECT_STREQ(again.firstElement()->readerWriterType(), table.firstElement()->readerWriterType());
        EXPECT_EQ(again.writtenText(), written);
    }
}

TEST(AxRangeProbabilityTable, EntriesMadeInCodeAreCopiedIn)
{
    AxDetectionPrbRangeLookupEntry steps;
    steps.setEntityType({1, 1, 1, 1, 1, 1, 1});
    AxPrbRangeTableEntry row(100.0);
    row.addProbability("detected", 0.5);
    steps.addTableEntry(row);
    AxDetectionPrbRangeCalcEntry line;
    AxPrbProbabilityCoefficients coefficients("detected", nullptr);
    double const values[] = {-0.01, 1.0};
    coefficients.setCoefficients(2, values);
    line.addProbabilityCoefficients(coefficients);

    HitTable table("eye", nullptr);
    AxRangeProbEntry const* const added = table.addDetectionProbabilityEntry(steps);
    EXPECT_NE(added, &steps);
    table.addDetectionProbabilityEntry(line);
    EXPECT_EQ(added->determinant().getMaximumDamageRadius(), 100.0);
    EXPECT_DOUBLE_EQ(line.determinant().getMaximumDamageRadius(), 100.0);
    AxPrbRangeTableEntry out;
    EXPECT_TRUE(table.getProbabilities(AxEntityType::nullType(), 50.0, &out));
    EXPECT_DOUBLE_EQ(out.probability("detected"), 0.5);
}

TEST(AxRangeProbabilityTable, LookUpFollowsTheRuleForAllPatterns)
{
    std::mt19937 random(1);
    std::uniform_int_distribution<int> field(-2, 1);
    for (int round = 0; round < 200; ++round)
    {
        HitTable table("t", nullptr);
        std::vector<AxEntityType> types;
        for (int i = 0; i < 12; ++i)
        {
            types.emplace_back(field(random), field(random), 0, 0, 0, 0, 0);
            AxDetectionPrbRangeLookupEntry entry;
            entry.setEntityType(types.back());
            table.addDetectionProbabilityEntry(entry);
        }
        AxEntityType const asked(field(random), field(random), 0, 0, 0, 0, 0);
        int expected = -1;
        for (int i = 0; i < 12 && (expected < 0 || types[static_cast<std::size_t>(expected)] != asked); ++i)
        {
            AxEntityType const& own = types[static_cast<std::size_t>(i)];
            expected = own == asked || asked.matchPattern(own) ? i : expected;
        }
        AxListItem const* found = table.first();
        for (int i = 0; i < expected; ++i)
        {
            found = found->next();
        }
        EXPECT_EQ(table.lookupDetectProbEntry(asked), expected < 0 ? nullptr : found);
    }
}
