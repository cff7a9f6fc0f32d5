#include "AxPrbRangeList.h"

#include "AxRwVariableBindings.h"
#include "AxSinkScope.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace
{
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double theNan = std::numeric_limits<double>::quiet_NaN();

AxPrbRangeTableEntry row(double range, double hit)
{
    AxPrbRangeTableEntry made(range);
    made.addProbability("hit", hit);
    return made;
}
} // namespace

TEST(AxPrbRangeList, IsAStepFunction)
{
    AxPrbRangeList list;
    for (double const range : {1000.0, 100.0, 500.0})
    {
        list.addTableEntry(row(range, range / 1000.0));
    }
    struct
    {
        double asked;
        bool known;
        double range;
        double hit;
    } const cases[] = {
        {50.0, true, 100.0, 0.1},         {100.0, true, 100.0, 0.1},    {101.0, true, 500.0, 0.5},
        {1000.0, true, 1000.0, 1.0},      {1001.0, false, 1001.0, 0.0}, {-infinity, true, 100.0, 0.1},
        {infinity, false, infinity, 0.0},
    };
    AxPrbRangeTableEntry out;
    for (auto const& c : cases)
    {
        EXPECT_EQ(list.getProbabilities(c.asked, &out), c.known) << c.asked;
        EXPECT_EQ(list.getProbabilities(c.asked, nullptr), c.known) << c.asked;
        EXPECT_EQ(out.range(), c.range) << c.asked;
        EXPECT_EQ(out.probability("hit"), c.hit) << c.asked;
        EXPECT_EQ(out.count(), 1) << c.asked;
    }
    EXPECT_FALSE(list.getProbabilities(theNan, &out));
    EXPECT_EQ(out.probability("hit"), 0.0);
    EXPECT_EQ(list.minRangeValue(), 100.0);
    EXPECT_EQ(list.maxRangeValue(), 1000.0);
}

TEST(AxPrbRangeList, EmptiesTheRowWhenThereIsNothingToAnswer)
{
    AxPrbRangeList const empty;
    AxPrbRangeTableEntry out = row(10.0, 0.5);
    EXPECT_FALSE(empty.getProbabilities(5.0, &out));
    EXPECT_EQ(out.count(), 0);
    EXPECT_EQ(empty.minRangeValue(), 0.0);
    EXPECT_EQ(empty.maxRangeValue(), 0.0);
}

TEST(AxPrbRangeList, LaterRowOfARangeReplacesTheEarlier)
{
    for (double const range : {100.0, 500.0, 1000.0})
    {
        AxPrbRangeList list;
        for (double const given : {100.0, 500.0, 1000.0, range})
        {
            list.addTableEntry(row(given, list.count() == 3 ? 0.75 : 0.25));
        }
        EXPECT_EQ(list.count(), 3);
        AxPrbRangeTableEntry out;
        EXPECT_TRUE(list.getProbabilities(range, &out));
        EXPECT_EQ(out.probability("hit"), 0.75);
    }
}

TEST(AxPrbRangeList, ReadingAnswersAsAddingOneByOne)
{
    unsigned state = 3;
    auto const below = [&state](unsigned limit)
    {
        state = state * 1103515245U + 12345U;
        return (state >> 16U) % limit;
    };
    for (int round = 0; round < 50; ++round)
    {
        AxPrbRangeList added("range-list", nullptr);
        std::string text = "(range-list ";
        unsigned const most = round % 5 == 0 ? 400 : 12; // rows of long tables are placed in another way
        for (unsigned i = below(most); i != 0; --i)
        {
            double const range = below(most * 2 / 3);
            double const hit = below(5) / 4.0;
            added.addTableEntry(row(range, hit));
            text += "(range-entry " + std::to_string(range) + " (hit " + std::to_string(hit) + "))";
        }
        AxSinkScope notes(AxInfo);
        AxPrbRangeList list("range-list", nullptr);
        readFrom(list, text + ')');
        EXPECT_EQ(list.writtenText(true), added.writtenText(true)) << text;
    }
}

TEST(AxPrbRangeList, RefusesARowWithoutARange)
{
    AxSinkScope warnings(AxWarn);
    AxPrbRangeList list;
    list.addTableEntry(static_cast<AxPrbRangeTableEntry*>(nullptr));
    EXPECT_EQ(warnings.text(), "Memory allocation failed in AxPrbRangeList::addTableEntry()\n");
    list.addTableEntry(row(theNan, 0.5));
    EXPECT_TRUE(list.isEmpty());
}

TEST(AxPrbRangeList, TellsOfReplacedRowsAndKeepsUnreadableOnes)
{
    AxSinkScope warnings(AxWarn);
    AxSinkScope notes(AxInfo);
    AxPrbRangeList list;
    readFrom(list, "(range-list\n(r 500 (hit 0.9))\n(r far (hit 0.1))\n(r 100 (hit 1))\n(r 500 (hit 0.85)))");
    EXPECT_EQ(list.count(), 2);
    EXPECT_NE(notes.text().find("test.ope:2:1: info: the row of range 500.0 is replaced"), std::string::npos);
    EXPECT_NE(warnings.text().find("test.ope:3:1: error: a row expects its range"), std::string::npos);
    EXPECT_EQ(list.writtenText(), "(range-list\n  (r 100.0 (hit 1.0))\n  (r far (hit 0.1))\n  (r 500.0 (hit 0.85)))\n");
}

TEST(AxPrbRangeList, CopiesRowsDeeply)
{
    AxPrbRangeList list("range-list", nullptr);
    list.addTableEntry(row(100.0, 0.5));
    AxPrbRangeList copy(list);
    EXPECT_TRUE(copy == list);
    EXPECT_EQ(copy.writtenText(), list.writtenText());
    copy.addTableEntry(row(200.0, 0.5));
    EXPECT_EQ(list.count(), 1);
    EXPECT_FALSE(copy == list);
    copy = *&copy;
    EXPECT_EQ(copy.count(), 2);
}

TEST(AxPrbRangeList, TakesBothZerosForOneRangeAndItselfForNothing)
{
    AxSinkScope notes(AxInfo);
    AxPrbRangeList list;
    readFrom(list, "(range-list (r -0.0 (hit 0.9)) (r 0.0 (hit 0.1)))");
    EXPECT_NE(notes.text().find("is replaced by a later one"), std::string::npos);
    list.copyList(list);
    EXPECT_EQ(list.count(), 1);
}

TEST(AxPrbRangeList, RowsOfAVariableThatIsBoundLaterAreInOrder)
{
    AxPrbRangeList list("range-list", nullptr);
    readFrom(list, "(range-list $rows)");
    AxRwVariableBindings values;
    readFrom(values, "(variable-bindings (rows (range-entry 300.0 (hit 0.25)) (range-entry 100.0 (hit 0.5))))");
    list.bindVariables({&values});
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(AxPrbRangeList::row(list.first())->range(), 100.0);
}
