#include "AxDmgMunitionTable.h"

#include "Allocations.h"
#include "AxDmgAngleOfIncidenceRangeLookupTable.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <random>

namespace
{
AxSimMunition munitionOf(AxObjectType const& type, char const* name = "")
{
    AxSimMunition munition;
    munition.setMunitionType(type);
    munition.setMunitionName(name);
    return munition;
}

AxObjectType const theHeat(2, 2, 225, 2, 13, 3, 0);
AxObjectType const theSabot(2, 2, 225, 2, 13, 8, 0);

/// Two damage files in a folder of the test's own, and entries that name them.
class AxDmgMunitionTableTest : public testing::Test
{
protected:
    AxDmgMunitionTableTest()
    {
        write("heat.dmg", "(heat (front (angle-of-incidence (angle 90.0) (range-determinant (range-list\n"
                          "  (range-entry 1.0 (catastrophic 0.6) (mobility 0.2)))))))\n");
        write("blast.dmg", "(blast (front (angle-of-incidence (angle 90.0) (range-determinant (coefficients\n"
                           "  (mobility -0.1 1.0)))))\n"
                           " (a-surface-with-a-long-name (angle-of-incidence (angle 90.0) (range-determinant\n"
                           "  (range-list (range-entry 30.0 (mobility 0.3) (firepower 0.2) (optics 0.9)))))))\n");
    }
    ~AxDmgMunitionTableTest() override
    {
        std::remove(folder("heat.dmg").c_str());
        std::remove(folder("blast.dmg").c_str());
    }
    static std::string folder(std::string const& file) { return testing::TempDir() + "AxDmgMunitionTable-" + file; }
    static void write(std::string const& file, std::string const& text) { std::ofstream(folder(file)) << text; }
    static std::string entry(std::string const& munition, std::string const& rest = "")
    {
        return "(ammo-entry (ammo " + munition + ") (direct-damage-file \"" + folder("heat.dmg") +
               "\") (collateral-damage-file \"" + folder("blast.dmg") + "\")" + rest + ")";
    }

    AxDmgMunitionTable table{"munition-damage", nullptr};
    AxPrbRangeTableEntry out;
};

constexpr char const* theLongName = "a-surface-with-a-long-name";
} // namespace

TEST_F(AxDmgMunitionTableTest, DirectAndCollateralDamageComeFromFilesOfTheirOwn)
{
    readFrom(table, "(t " + entry("(munition-type 2 2 225 2 13 -1 -1)") + ")");
    AxSimMunition matched;
    EXPECT_TRUE(table.getProbabilities(munitionOf(theHeat), "front", 45.0, 0.5, &out, true, &matched));
    EXPECT_EQ(out.writtenText(), "(range-entry 1.0 (catastrophic 0.6) (mobility 0.2))\n");
    EXPECT_EQ(matched.munitionType(), AxObjectType(2, 2, 225, 2, 13, -1, -1));
    EXPECT_TRUE(table.getProbabilities(munitionOf(theHeat), "front", 45.0, 0.5, &out, false));
    EXPECT_EQ(out.writtenText(), "(range-entry 0.5 (mobility 0.95))\n");
    EXPECT_FALSE(table.getProbabilities(munitionOf(theHeat), theLongName, 45.0, 0.5, &out, true));
    EXPECT_TRUE(table.getProbabilities(munitionOf(theHeat), theLongName, 45.0, 0.5, &out, false));
}

TEST_F(AxDmgMunitionTableTest, MunitionIsToldAsSoonAsAnEntryIsFound)
{
    readFrom(table, "(t " + entry("(munition-type 2 2 225 2 13 3 0)") + ")");
    AxSimMunition matched = munitionOf(theSabot, "as it was");
    EXPECT_FALSE(table.getProbabilities(munitionOf(theSabot), "front", 45.0, 0.5, &out, true, &matched));
    EXPECT_EQ(matched.munitionName(), "as it was");
    EXPECT_FALSE(table.getProbabilities(munitionOf(theHeat), "top", 45.0, 0.5, &out, true, &matched));
    EXPECT_EQ(matched.munitionType(), theHeat);
    EXPECT_EQ(matched.munitionName(), "");
    EXPECT_TRUE(out.isEmpty());
}

TEST_F(AxDmgMunitionTableTest, EqualMunitionAnswersBeforeEveryPattern)
{
    AxObjectType const pattern(2, 2, 225, 2, -1, -1, -1);
    for (bool const exactFirst : {true, false})
    {
        AxDmgMunitionTable both;
        both.addMunitionEntry(exactFirst ? theHeat : pattern);
        both.addMunitionEntry(exactFirst ? pattern : theHeat);
        EXPECT_EQ(both.lookupMunitionEntry(munitionOf(theHeat))->munition().munitionType(), theHeat);
        EXPECT_EQ(both.lookupMunitionEntry(munitionOf(theSabot))->munition().munitionType(), pattern);
    }
}

TEST_F(AxDmgMunitionTableTest, LookUpFollowsTheRuleForAllMunitions)
{
    std::mt19937 random(7);
    auto const any = [&]
    {
        AxSimMunition munition;
        auto const field = [&] { return static_cast<int>(random() % 3) - 1; };
        munition.setMunitionType(AxObjectType(field(), field(), 0, 0, 0, 0, 0));
        munition.setWarhead(field());
        munition.setMunitionName(random() % 2 ? "a" : "");
        return munition;
    };
    for (int round = 0; round < 300; ++round)
    {
        AxDmgMunitionTable many;
        for (int i = 0; i < 10; ++i)
        {
            many.addMunitionEntry(AxObjectType())->setMunition(any());
        }
        AxSimMunition const asked = any();
        AxDmgMunitionEntry const* expected = nullptr;
        for (AxDmgMunitionEntry const* candidate : many)
        {
            if (candidate->munition() == asked)
            {
                expected = candidate;
                break;
            }
            expected = candidate->munition().matchPattern(asked) ? candidate : expected;
        }
        EXPECT_EQ(many.lookupMunitionEntry(asked), expected) << round;
    }
}

TEST_F(AxDmgMunitionTableTest, EntryWritesItsFileNamesAndIsCopiedWithWhatTheyHold)
{
    std::string const text = "(t\n"
                             "  (ammo-entry\n"
                             "    (ammo\n"
                             "      (munition-name \"heat\"))\n"
                             "    (direct-damage-file \"" +
                             folder("heat.dmg") + "\")\n    (collateral-damage-file \"" + folder("blast.dmg") +
                             "\")\n"
                             "    (suppression-detonation-insult 0.5)\n"
                             "    (suppression-detonation-range 40.0)\n"
                             "    (suppression-lof-insult 0.1)\n"
                             "    (suppression-lof-range 60.0)))\n";
    AxDmgMunitionTable named("t", nullptr);
    ReportedFindings reported;
    readFrom(named, text);
    EXPECT_EQ(reported.codes(), "");
    EXPECT_EQ(named.writtenText(), text);

    AxDmgMunitionTable const copy(named);
    EXPECT_TRUE(copy == named);
    AxSimMunition const asked = munitionOf(theHeat, "heat");
    EXPECT_TRUE(copy.getProbabilities(asked, "front", 10.0, 0.5, &out, true));
    EXPECT_EQ(copy.getMaximumDamageRadius(asked), 30.0) << "the larger of 1.0 and 30.0";
    EXPECT_EQ(copy.getMaximumSuppressionRadius(asked), 60.0);
    EXPECT_EQ(copy.getMaximumDamageRadius(munitionOf(theHeat)), 0.0) << "no entry is for a munition without a name";
    EXPECT_EQ(copy.getMaximumSuppressionRadius(munitionOf(theHeat)), 0.0);

    AxDmgMunitionTable fromTree("t", nullptr);
    EXPECT_TRUE(fromTree.fromXml(named.toXml()));
    EXPECT_EQ(fromTree.writtenText(), text);
}

TEST_F(AxDmgMunitionTableTest, TableStandsInPlaceWhenNoFileIsNamed)
{
    readFrom(table, "(munition-damage (ammo-entry (direct-damage-file\n"
                    "  (front (angle-of-incidence (angle 90.0) (range-determinant (coefficients (hit 0.5))))))))");
    EXPECT_TRUE(table.getProbabilities(munitionOf(theHeat), "front", 10.0, 0.5, &out, true));
    EXPECT_EQ(out.probability("hit"), 0.5);
    std::string const text = table.writtenText();
    EXPECT_NE(text.find("(direct-damage-file\n      (front\n"), std::string::npos) << text;
    EXPECT_EQ(AxDmgMunitionTable(table).writtenText(), text);
}

TEST_F(AxDmgMunitionTableTest, FileCountsBesideATableInPlace)
{
    for (bool const fileFirst : {true, false})
    {
        std::string const named = "(direct-damage-file \"" + folder("heat.dmg") + "\")";
        std::string const inPlace =
            "(direct-damage-file (front (angle-of-incidence (angle 90.0) (range-determinant (coefficients (x 1))))))";
        ReportedFindings reported;
        readFrom(table, "(t (ammo-entry " + (fileFirst ? named + inPlace : inPlace + named) + "))");
        ASSERT_FALSE(reported.all.empty());
        EXPECT_EQ(reported.all.back().code, "file-and-inline");
        EXPECT_TRUE(table.getProbabilities(munitionOf(theHeat), "front", 10.0, 0.5, &out, true));
        EXPECT_EQ(out.probability("catastrophic"), 0.6) << fileFirst;
    }
}

TEST_F(AxDmgMunitionTableTest, FileThatCannotBeReadLeavesItsTableEmpty)
{
    ReportedFindings reported;
    readFrom(table, "(t\n (ammo-entry (direct-damage-file \"no-such.dmg\")))");
    EXPECT_EQ(reported.codes(), "missing-file@2:34");
    EXPECT_FALSE(table.getProbabilities(munitionOf(theHeat), "front", 10.0, 0.5, &out, true));
    EXPECT_EQ(table.lookupMunitionEntry(munitionOf(theHeat))->directDamageFilename(), AxFilename("no-such.dmg"));
}

TEST_F(AxDmgMunitionTableTest, NewEntryFitsEveryMunitionAndDoesNothing)
{
    AxDmgMunitionEntry entry;
    EXPECT_EQ(entry.writtenText(), "(ammo-entry)\n");
    EXPECT_EQ(entry.getMaximumDamageRadius(), 0.0);
    EXPECT_EQ(entry.getMaximumSuppressionRadius(), 0.0);
    table.addMunitionEntry(entry);
    EXPECT_NE(table.lookupMunitionEntry(munitionOf(theHeat)), nullptr);
    EXPECT_FALSE(table.getProbabilities(munitionOf(theHeat), "front", 0.0, 0.0, &out, true));
}

TEST_F(AxDmgMunitionTableTest, KeepsWhatStandsInPlaceOfAName)
{
    readFrom(table, "(t ((x 1) (suppression-lof-range 3.0)))");
    std::string const text = table.writtenText();
    EXPECT_EQ(text, "(munition-damage\n  ((x 1) (suppression-lof-range 3.0)))\n");
    readFrom(table, text);
    EXPECT_EQ(table.writtenText(), text);
}

TEST_F(AxDmgMunitionTableTest, QueryAllocatesNothingOnceTheRowHasHeldTheFullestAnswer)
{
    readFrom(table, "(t " + entry("(munition-type 2 2 225 2 13 -1 -1)") + entry("(munition-name \"heat\")") + ")");
    AxSimMunition const asked = munitionOf(theHeat, "heat");
    AxSimMunition matched;
    AxString const surfaces[] = {"front", theLongName};
    auto const askAll = [&]
    {
        int answers = 0;
        for (AxString const& surface : surfaces)
        {
            for (bool const direct : {true, false})
            {
                for (double const range : {0.5, 20.0})
                {
                    answers += table.getProbabilities(asked, surface, 45.0, range, &out, direct, &matched);
                }
            }
        }
        return answers;
    };
    EXPECT_EQ(askAll(), 6);
    std::size_t const before = allocationCount();
    EXPECT_EQ(askAll(), 6);
    EXPECT_EQ(allocationCount(), before);
}
