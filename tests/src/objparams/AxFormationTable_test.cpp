#include "AxFormationTable.h"

#include "RecordFixture.h"

#include <cstdio>
#include <fstream>

namespace
{
constexpr char const* theFormations = R"((formation-list
  (default-formation "wedge")
  (formation-entry
    (formation-type "column")
    (formation
      (positions
        (position
          (offset -25.0 0.0 0.0)
          (heading 0.5)
          (role "lead"))
        (position
          (offset -50.0 5.0 0.0)))
      (extra-spacing -25.0 1.0 0.0)))
  (formation-entry
    (formation-type "wedge")))
)";

class AxFormationTableTest : public RecordFixture
{
protected:
    AxFormationTableTest() { readFrom(table, theFormations); }
    AxFormationTable table{"formation-list", nullptr};
};
} // namespace

TEST_F(AxFormationTableTest, TextComesBackAsItWas)
{
    EXPECT_EQ(table.writtenText(), theFormations);
    AxFormationTable byCells("formation-list", nullptr);
    readCellsInto(byCells, theFormations);
    EXPECT_EQ(byCells.writtenText(), theFormations);
    EXPECT_TRUE(byCells == table);
    AxFormationTable byTree("formation-list", nullptr);
    EXPECT_TRUE(byTree.fromXml(table.toXml()));
    EXPECT_EQ(byTree.writtenText(), theFormations);
    EXPECT_TRUE(findings.empty());
}

TEST_F(AxFormationTableTest, CopiesEqualTheirSourceUntilOneChanges)
{
    AxFormationTable const copy(table);
    AxFormationTable assigned("x", nullptr);
    assigned.add(AxFormationTableEntry());
    assigned = table;
    std::unique_ptr<AxReaderWriter> const clone(
        AxReaderWriter::factory()->cloneReaderWriter("AxFormationTable", &table, nullptr));
    for (AxRwList const* other : {static_cast<AxRwList const*>(&copy), static_cast<AxRwList const*>(&assigned),
                                  static_cast<AxRwList const*>(dynamic_cast<AxFormationTable*>(clone.get()))})
    {
        EXPECT_TRUE(other->equals(table));
        EXPECT_NE(other->writtenText().find("(default-formation \"wedge\")"), std::string::npos);
    }
    assigned.setDefaultFormation("line");
    EXPECT_FALSE(assigned == table);
    assigned = table;
    assigned.lookup("column")->formation().setExtraSpacing({1.0, 2.0, 3.0});
    EXPECT_FALSE(assigned == table);
}

TEST_F(AxFormationTableTest, UnknownDefaultIsTheFirstEntry)
{
    EXPECT_EQ(table.defaultFormation(), table.lookup("wedge"));
    EXPECT_EQ(table.lookup("Wedge"), nullptr) << "names are exact";
    for (char const* name : {"", "line"})
    {
        table.setDefaultFormation(name);
        EXPECT_EQ(table.defaultFormation(), table.lookup("column"));
        EXPECT_EQ(table.defaultFormationType(), "column");
    }
    AxFormationTable const empty("formation-list", nullptr);
    EXPECT_EQ(empty.defaultFormation(), nullptr);
    EXPECT_EQ(empty.defaultFormationType(), "");
}

TEST_F(AxFormationTableTest, FormationsKnowTheirType)
{
    AxFormationTableEntry& entry = *table.lookup("column");
    EXPECT_EQ(entry.formation().formationType(), "column");
    AxFormation const& formation = entry.formation();
    entry.setFormationType("file");
    EXPECT_EQ(formation.formationType(), "file");
    AxFormationTableEntry const copy(entry);
    EXPECT_EQ(copy.formation().formationType(), "file");
    EXPECT_EQ(AxFormation(formation).formationType(), "file");
}

TEST_F(AxFormationTableTest, PlacesBeyondTheListFollowTheExtraSpacing)
{
    AxFormation const& column = table.lookup("column")->formation();
    EXPECT_EQ(column.numPositions(), 2);
    AxVector64 const expected[] = {
        {-25.0, 0.0, 0.0}, {-50.0, 5.0, 0.0}, {-75.0, 6.0, 0.0}, {-100.0, 7.0, 0.0}, {-125.0, 8.0, 0.0}};
    for (int i = 0; i < 5; ++i)
    {
        EXPECT_EQ(column.offset(i), expected[i]) << i;
    }
    EXPECT_EQ(column.offset(-1), AxVector64());

    AxFormation& wedge = table.lookup("wedge")->formation();
    EXPECT_EQ(wedge.offset(7), AxVector64());
    wedge.setExtraSpacing({-10.0, 0.0, 0.0});
    EXPECT_EQ(wedge.offset(0), AxVector64(-10.0, 0.0, 0.0));
    EXPECT_EQ(wedge.offset(2), AxVector64(-30.0, 0.0, 0.0));
}

TEST_F(AxFormationTableTest, FileHoldsTheFormation)
{
    AxFilename const file(testing::TempDir() + "wedge.frm");
    std::ofstream(file.native()) << "(wedge (positions (position (offset -10.0 10.0 0.0))))\n";
    std::string const text = "(formation-list\n  (formation-entry\n    (formation-type \"wedge\")\n"
                             "    (formation-file \"wedge.frm\")))\n";
    AxFormationTable named("formation-list", nullptr);
    named.readText(text, AxFilename("test.ope"), {AxFilename(testing::TempDir())}, {});
    AxFormation const& formation = named.lookup("wedge")->formation();
    EXPECT_EQ(formation.offset(0), AxVector64(-10.0, 10.0, 0.0));
    EXPECT_EQ(formation.formationType(), "wedge");
    EXPECT_EQ(named.writtenText(), text) << "with a file, its name alone is written";
    AxFormationTable const copy(named);
    EXPECT_EQ(copy.writtenText(), text);
    EXPECT_EQ(copy.lookup("wedge")->formation().offset(0), AxVector64(-10.0, 10.0, 0.0));
    std::remove(file.native().c_str());
}
