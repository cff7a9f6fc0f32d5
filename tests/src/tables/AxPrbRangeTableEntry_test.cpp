#include "AxPrbRangeTableEntry.h"

#include "AxRwVariableBindings.h"
#include "AxSinkScope.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>

TEST(AxPrbRangeTableEntry, IsWrittenOnOneLineAndReadBack)
{
    AxPrbRangeTableEntry row(500.0);
    row.addProbability("hit", 0.8);
    row.addProbability("kill no", 0.25);
    EXPECT_EQ(row.writtenText(), "(range-entry 500.0 (hit 0.8) (\"kill no\" 0.25))\n");

    AxPrbRangeTableEntry copy;
    EXPECT_TRUE(readFrom(copy, row.writtenText()));
    EXPECT_TRUE(copy == row);
    copy.setRange(501.0);
    EXPECT_FALSE(copy == row);
}

TEST(AxPrbRangeTableEntry, KeepsTheHeadOfANamedRow)
{
    AxPrbRangeTableEntry row(AxSymbolString(), nullptr);
    readFrom(row, "(near 10 (hit 1))");
    EXPECT_EQ(row.writtenText(), "(near 10.0 (hit 1.0))\n");
}

TEST(AxPrbRangeTableEntry, AnswersTheFirstOutcomeOfANameAndZeroForNone)
{
    AxPrbRangeTableEntry row;
    row.addProbability("hit", 0.8);
    row.addProbability("hit", 0.1);
    EXPECT_EQ(row.probability("hit"), 0.8);
    EXPECT_EQ(row.probability("kill"), 0.0);
    EXPECT_EQ(row.count(), 2);
}

TEST(AxPrbRangeTableEntry, SkipsWhatIsNoOutcomeAndWritesItBack)
{
    AxSinkScope warnings(AxWarn);
    AxPrbRangeTableEntry row;
    readFrom(row, "(range-entry 100.0 (hit \"x\") (kill 0.5) (seen 0.1 0.2))");
    EXPECT_EQ(row.count(), 1);
    EXPECT_EQ(row.probability("kill"), 0.5);
    EXPECT_NE(warnings.text().find("test.ope:1:20: warning: an outcome expects a name and a number; it is skipped"),
              std::string::npos);
    EXPECT_EQ(row.writtenText(), "(range-entry 100.0 (kill 0.5)\n  (hit \"x\")\n  (seen 0.1 0.2))\n");
}

TEST(AxPrbRangeTableEntry, RowsDifferInRangeNamesNumberAndOutcomes)
{
    static constexpr char const* theRows[] = {"(r 1 (hit 0.5))",          "(r 2 (hit 0.5))",  "(r nan (hit 0.5))",
                                              "(r 1 (hit 0.6))",          "(r 1 (kill 0.5))", "(r 1)",
                                              "(r 1 (hit 0.5) (kill 1))", "(r 1 (\"5\" 0.5))"};
    for (char const* one : theRows)
    {
        for (char const* other : theRows)
        {
            AxPrbRangeTableEntry a;
            AxPrbRangeTableEntry b;
            EXPECT_TRUE(readFrom(a, one) && readFrom(b, other));
            EXPECT_EQ(a == b, one == other) << one << ' ' << other;
        }
        AxPrbRangeTableEntry row;
        readFrom(row, one);
        row.reset();
        EXPECT_TRUE(row == AxPrbRangeTableEntry()) << one;
    }
}

TEST(AxPrbRangeTableEntry, OutcomesMayBeVariablesButNotTheRange)
{
    AxSinkScope warnings(AxWarn);
    AxPrbRangeTableEntry row;
    readFrom(row, "(range-entry 100.0 (hit $p) (kill ($q 0.25)))");
    EXPECT_EQ(warnings.text(), "");
    EXPECT_EQ(row.count(), 2);
    EXPECT_EQ(row.probability("kill"), 0.25);
    EXPECT_EQ(row.writtenText(), "(range-entry 100.0 (hit $p) (kill ($q 0.25)))\n");
    AxPrbRangeTableEntry other;
    readFrom(other, "(range-entry near (hit 0.5))");
    EXPECT_NE(warnings.text().find("a row expects its range, a number, first"), std::string::npos);
    EXPECT_EQ(other.probability("hit"), 0.5);
}

TEST(AxPrbRangeTableEntry, NothingThatIsNoOutcomeIsLost)
{
    AxSinkScope quiet(AxWarn);
    AxPrbRangeTableEntry row;
    readFrom(row, "(range-entry 100.0 hit (kill (0.5)) (seen ($s x y) 1))");
    EXPECT_EQ(row.count(), 0);
    std::string const text = "(range-entry 100.0\n  hit\n  (kill (0.5))\n  (seen ($s x y) 1))\n";
    EXPECT_EQ(row.writtenText(), text);
    AxPrbRangeTableEntry again;
    readFrom(again, text.c_str());
    EXPECT_EQ(again.writtenText(), text);
    EXPECT_EQ(AxPrbRangeTableEntry(row).writtenText(), text);
}

TEST(AxPrbRangeTableEntry, CopiesReferToTheVariablesToo)
{
    AxPrbRangeTableEntry row;
    readFrom(row, "(range-entry 100.0 (hit $p) (kill ($q 0.5)) (seen 0.25))");
    AxPrbRangeTableEntry copy(row);
    EXPECT_EQ(copy.writtenText(), row.writtenText());
    AxRwVariableBindings values;
    readFrom(values, "(variable-bindings (p 0.75))");
    copy.bindVariables({&values});
    EXPECT_EQ(copy.probability("hit"), 0.75);
    EXPECT_EQ(row.probability("hit"), 0.0);

    readFrom(row, "(range-entry 50.0 (hit 0.125) (kill 0.5))");
    copy = row;
    EXPECT_EQ(copy.writtenText(), "(range-entry 50.0 (hit 0.125) (kill 0.5))\n");
}

TEST(AxPrbRangeTableEntry, AssignmentReplacesAndReusesOutcomes)
{
    AxPrbRangeTableEntry from(1.0);
    from.addProbability("a", 0.1);
    from.addProbability("b", 0.2);
    AxPrbRangeTableEntry to(2.0);
    for (char const* name : {"x", "y", "z"})
    {
        to.addProbability(name, 0.9);
    }
    AxReaderWriter const* const reused = to.firstElement();
    to = from;
    EXPECT_TRUE(to == from);
    EXPECT_EQ(to.firstElement(), reused);
    EXPECT_EQ(to.probability("z"), 0.0);
}
