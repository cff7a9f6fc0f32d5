#include "AxDmgSurfaceTable.h"

#include "AxDmgAngleOfIncidenceRangeCalcTable.h"
#include "AxDmgAngleOfIncidenceRangeLookupTable.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace
{
char const* const heatDamage = R"((damage-table
  (front
    (angle-of-incidence
      (angle 30.0)
      (range-determinant
        (range-list
          (range-entry 1.0 (catastrophic 0.6) (mobility 0.2)))))
    (angle-of-incidence
      (angle 60.0)
      (range-determinant
        (range-list
          (range-entry 1.0 (catastrophic 0.3)))))
    (angle-of-incidence
      (angle 90.0)
      (range-determinant
        (coefficients
          (catastrophic -0.1 0.2)))))
  (rear
    (angle-of-incidence
      (angle 180.0)
      (range-determinant
        (range-list
          (range-entry 1.0 (catastrophic 0.9))
          (range-entry 3.0 (catastrophic 0.1)))))))
)";

class DamageTable : public AxDmgSurfaceTable
{
public:
    explicit DamageTable(std::string_view text) : AxDmgSurfaceTable(AxSymbolString(), nullptr)
    {
        ReportedFindings reported;
        readFrom(*this, text);
        codes = reported.codes();
        warnings = reported.warnings();
    }
    std::string codes;
    std::string warnings;
};

/// A surface entry with one row at range 1.0 for each of `angles`, whose "hit" is its place, in hundredths.
AxDmgSurfaceEntry surfaceOf(char const* name, std::vector<double> const& angles)
{
    AxDmgSurfaceEntry entry(name, nullptr);
    for (std::size_t i = 0; i < angles.size(); ++i)
    {
        AxPrbRangeTableEntry row(1.0);
        row.addProbability("hit", static_cast<double>(i) / 100.0);
        AxDmgAngleOfIncidenceRangeLookupTable table;
        table.setAngleOfIncidence(angles[i]);
        table.addTableEntry(row);
        entry.addAngleOfIncidenceTable(table);
    }
    return entry;
}
} // namespace

TEST(AxDmgSurfaceTable, AnswersBySurfaceAngleAndRange)
{
    DamageTable const table(heatDamage);
    struct
    {
        char const* surface;
        double angle;
        double range;
        double catastrophic;
        double mobility;
    } const cases[] = {
        {"front", 10.0, 0.5, 0.6, 0.2},  {"front", -5.0, 1.0, 0.6, 0.2},  {"front", 10.0, 1.5, 0.0, 0.0},
        {"front", 30.5, 0.5, 0.3, 0.0},  {"front", 60.0, 0.5, 0.3, 0.0},  {"front", 61.0, 0.5, 0.15, 0.0},
        {"front", 90.0, 30.0, 0.0, 0.0}, {"rear", 179.0, 1.01, 0.1, 0.0}, {"rear", 180.0, 4.0, 0.0, 0.0},
    };
    AxPrbRangeTableEntry out;
    for (auto const& c : cases)
    {
        ASSERT_TRUE(table.getProbabilities(c.surface, c.angle, c.range, &out)) << c.angle;
        EXPECT_DOUBLE_EQ(out.probability("catastrophic"), c.catastrophic) << c.angle;
        EXPECT_DOUBLE_EQ(out.probability("mobility"), c.mobility) << c.angle;
    }
    EXPECT_TRUE(table.getProbabilities("rear", 10.0, 0.5, nullptr));
}

TEST(AxDmgSurfaceTable, TellsOfAnAngleThatNoTableIsForButNotOfAnUnknownSurface)
{
    DamageTable const table(heatDamage);
    AxPrbRangeTableEntry out(7.0);
    out.addProbability("hit", 0.5);
    AxSinkScope warnings(AxWarn);
    EXPECT_FALSE(table.getProbabilities("top", 10.0, 0.5, &out));
    EXPECT_FALSE(table.getProbabilities("Front", 10.0, 0.5, &out));
    EXPECT_FALSE(table.getProbabilities("", 10.0, 0.5, &out));
    EXPECT_EQ(warnings.text(), "");
    EXPECT_FALSE(table.getProbabilities("front", 95.0, 0.5, &out));
    EXPECT_FALSE(table.getProbabilities("front", std::numeric_limits<double>::quiet_NaN(), 0.5, &out));
    EXPECT_EQ(warnings.text(), "No angleOfIncidence entry found for 95.000000 angle\n"
                               "No angleOfIncidence entry found for nan angle\n");
    EXPECT_EQ(out.writtenText(), "(range-entry 7.0 (hit 0.5))\n");
}

TEST(AxDmgSurfaceTable, WritesWhatItReads)
{
    DamageTable table(heatDamage);
    EXPECT_EQ(table.codes, "");
    EXPECT_EQ(table.writtenText(), heatDamage);
    AxDmgSurfaceTable copy(table);
    EXPECT_TRUE(copy == table);
    EXPECT_EQ(copy.writtenText(), heatDamage);
    AxPrbRangeTableEntry out;
    EXPECT_TRUE(copy.getProbabilities("rear", 10.0, 0.5, &out));
    copy.removeSurfaceEntry(copy.lookupSurfaceEntry("rear"));
    EXPECT_FALSE(copy == table);
    EXPECT_TRUE(table.getProbabilities("rear", 10.0, 0.5, &out)) << "the copy has entries of its own";
    copy = table;
    EXPECT_TRUE(copy == table);
}

TEST(AxDmgSurfaceTable, ComesBackFromATree)
{
    DamageTable table(heatDamage);
    DamageTable fromTree("(x)");
    EXPECT_TRUE(fromTree.fromXml(table.toXml()));
    fromTree.setName("damage-table");
    EXPECT_EQ(fromTree.writtenText(), heatDamage);
}

TEST(AxDmgSurfaceTable, EqualTablesHaveTheSameSurfaces)
{
    EXPECT_FALSE(DamageTable("(t (front))") == DamageTable("(t (rear))"));
    EXPECT_TRUE(DamageTable("(t (front))") == DamageTable("(u (front))"));
}

TEST(AxDmgSurfaceTable, LastOfSeveralEntriesOfASurfaceAnswers)
{
    DamageTable table("(t\n"
                      "  (front (angle-of-incidence (angle 90.0) (range-determinant (coefficients (hit 0.1)))))\n"
                      "  (front (angle-of-incidence (angle 90.0) (range-determinant (coefficients (hit 0.2))))))");
    EXPECT_EQ(table.codes, "repeated-surface@3:4");
    EXPECT_EQ(table.count(), 2);
    std::string const text = table.writtenText();
    EXPECT_NE(text.find("(hit 0.1)"), std::string::npos);
    AxPrbRangeTableEntry out;
    EXPECT_TRUE(table.getProbabilities("front", 1.0, 0.0, &out));
    EXPECT_EQ(out.probability("hit"), 0.2);
    EXPECT_TRUE(table.removeSurfaceEntry(table.lookupSurfaceEntry("front")));
    EXPECT_TRUE(table.getProbabilities("front", 1.0, 0.0, &out));
    EXPECT_EQ(out.probability("hit"), 0.1);
    EXPECT_TRUE(table.removeSurfaceEntry(table.lookupSurfaceEntry("front")));
    EXPECT_FALSE(table.removeSurfaceEntry(table.lookupSurfaceEntry("front")));
    EXPECT_TRUE(table.isEmpty());
}

TEST(AxDmgSurfaceTable, ReportsAndKeepsElementsOfUnknownDeterminants)
{
    DamageTable table("(t (front (angle-of-incidence (angle 30.0) (range-determinant (spline 1 2)))\n"
                      "  (angle-of-incidence (angle 60.0) (range-determinant (coefficients (hit 0.5))))))");
    EXPECT_EQ(table.codes, "unknown-determinant@1:64");
    EXPECT_EQ(table.warnings, "Unrecognized range determinant spline in damage table\n");
    EXPECT_EQ(table.lookupSurfaceEntry("front")->count(), 1);
    EXPECT_NE(table.writtenText().find("(angle-of-incidence (angle 30.0) (range-determinant (spline 1 2)))\n"),
              std::string::npos);
    DamageTable nameless(
        "(t (7 (angle-of-incidence (angle 30.0) (range-determinant (coefficients (hit 0.5))))) ((a b)))");
    EXPECT_EQ(nameless.codes, "bad-name@1:5 bad-name@1:88");
    EXPECT_EQ(nameless.lookupSurfaceEntry(""), nullptr);
    EXPECT_EQ(nameless.writtenText(),
              "(t\n  (7 (angle-of-incidence (angle 30.0) (range-determinant (coefficients (hit 0.5)))))\n  ((a b)))\n");
    EXPECT_EQ(DamageTable("(t (front (angle-of-incidence (angle 30.0))))").warnings,
              "Unrecognized range determinant  in damage table\n");
}

TEST(AxDmgSurfaceTable, RadiusIsTheLargestRangeOfAnyDeterminant)
{
    EXPECT_EQ(DamageTable(heatDamage).getMaximumDamageRadius(), 3.0);
    EXPECT_EQ(DamageTable(heatDamage).lookupSurfaceEntry("front")->getMaximumDamageRadius(), 2.0)
        << "the root of the line";
    EXPECT_EQ(AxDmgSurfaceTable().getMaximumDamageRadius(), 0.0);
    EXPECT_EQ(DamageTable("(t (front (angle-of-incidence (range-determinant (coefficients (hit 1 0 1))))))")
                  .getMaximumDamageRadius(),
              0.0)
        << "no root is no range";
}

TEST(AxDmgSurfaceTable, FindsEverySurfaceAfterEveryKindOfEdit)
{
    std::mt19937 random(3);
    char const* const names[] = {"front", "rear", "left", "right", "top", ""};
    AxDmgSurfaceTable table;
    for (int round = 0; round < 500; ++round)
    {
        AxListItem* item = table.first();
        for (unsigned long skipped = table.isEmpty() ? 0 : random() % static_cast<unsigned long>(table.count());
             skipped > 0; --skipped)
        {
            item = item->next();
        }
        AxDmgSurfaceEntry const added(names[random() % 6], nullptr);
        switch (random() % 5)
        {
        case 0:
            table.addSurfaceEntry(added);
            break;
        case 1:
            table.addToStart(new AxDmgSurfaceEntry(added));
            break;
        case 2:
            table.addBefore(new AxDmgSurfaceEntry(added), item);
            break;
        default:
            table.removeSurfaceEntry(item ? static_cast<AxDmgSurfaceEntry*>(item->data()) : nullptr);
        }
        for (char const* name : names)
        {
            AxDmgSurfaceEntry const* expected = nullptr;
            for (AxDmgSurfaceEntry const* entry : table)
            {
                expected = entry->AxReaderWriter::name() == name ? entry : expected;
            }
            ASSERT_EQ(table.lookupSurfaceEntry(name), expected) << round << name;
        }
    }
}

TEST(AxDmgSurfaceEntry, FirstAngleNotBelowTheAskedOneAnswersInFileOrder)
{
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round)
    {
        std::vector<double> angles;
        for (unsigned long count = random() % 6; angles.size() < count;)
        {
            angles.push_back(static_cast<double>(random() % 19) * 10.0);
        }
        AxDmgSurfaceEntry const entry = surfaceOf("front", angles);
        double const asked = static_cast<double>(random() % 38) * 5.0;
        std::size_t expected = 0;
        while (expected < angles.size() && angles[expected] < asked)
        {
            ++expected;
        }
        AxSinkScope warnings(AxWarn);
        AxPrbRangeTableEntry out;
        ASSERT_EQ(entry.getProbabilities(asked, 0.5, &out), expected < angles.size());
        EXPECT_EQ(warnings.text().empty(), expected < angles.size());
        EXPECT_EQ(out.probability("hit"), expected < angles.size() ? static_cast<double>(expected) / 100.0 : 0.0);
    }
}

TEST(AxDmgSurfaceEntry, TakesTablesOfBothKinds)
{
    AxDmgSurfaceEntry entry = surfaceOf("front", {30.0});
    AxDmgAngleOfIncidenceRangeCalcTable line;
    line.setAngleOfIncidence(90.0);
    AxPrbProbabilityCoefficients coefficients("hit", nullptr);
    double const values[] = {-0.1, 1.0};
    coefficients.setCoefficients(2, values);
    line.addProbabilityCoefficients(coefficients);
    AxDmgAngleOfIncidenceTable const* const added = entry.addAngleOfIncidenceTable(line);
    EXPECT_NE(added, &line);
    EXPECT_EQ(added->getMaximumDamageRadius(), 10.0);
    AxDmgSurfaceEntry const copy(entry);
    EXPECT_TRUE(copy == entry);
    AxPrbRangeTableEntry out;
    EXPECT_TRUE(copy.getProbabilities(45.0, 5.0, &out));
    EXPECT_DOUBLE_EQ(out.probability("hit"), 0.5);
    AxSinkScope warnings(AxWarn);
    EXPECT_EQ(entry.addAngleOfIncidenceTable(nullptr), nullptr);
    EXPECT_EQ(warnings.text(), "Memory allocation failed in AxDmgSurfaceEntry::addAngleOfIncidenceTable()\n");
}
