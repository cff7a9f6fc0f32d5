#include "AxPrbRangeTableEntry.h"

#include "AxSinkScope.h"

#include <gtest/gtest.h>

namespace
{
bool read(AxReaderWriter& rw, char const* text)
{
    return rw.readText(text, "row", AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
}
} // namespace

TEST(AxPrbRangeTableEntry, IsWrittenOnOneLineAndReadBack)
{
    AxPrbRangeTableEntry row(500.0);
    row.addProbability("hit", 0.8);
    row.addProbability("kill no", 0.25);
    EXPECT_EQ(row.writtenText(), "(range-entry 500.0 (hit 0.8) (\"kill no\" 0.25))\n");

    AxPrbRangeTableEntry copy;
    EXPECT_TRUE(read(copy, row.writtenText().c_str()));
    EXPECT_TRUE(copy == row);
    copy.setRange(501.0);
    EXPECT_FALSE(copy == row);
}

TEST(AxPrbRangeTableEntry, KeepsTheHeadOfANamedRow)
{
    AxPrbRangeTableEntry row(AxSymbolString(), nullptr);
    read(row, "(near 10 (hit 1))");
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
    read(row, "(range-entry 100.0 (hit \"x\") (kill 0.5) (seen 0.1 0.2))");
    EXPECT_EQ(row.count(), 1);
    EXPECT_EQ(row.probability("kill"), 0.5);
    EXPECT_NE(warnings.text().find("row:1:20: warning: an outcome expects a name and a number; it is skipped"),
              std::string::npos);
    EXPECT_EQ(row.writtenText(), "(range-entry 100.0 (kill 0.5)\n  (hit \"x\")\n  (seen 0.1 0.2))\n");
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
