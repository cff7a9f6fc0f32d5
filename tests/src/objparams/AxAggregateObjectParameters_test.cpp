#include "AxAggregateObjectParameters.h"

#include "RecordFixture.h"

namespace
{
class AxAggregateObjectParametersTest : public RecordFixture
{
protected:
    static std::unique_ptr<AxAggregateObjectParameters> unit(RecordPtr record)
    {
        return std::unique_ptr<AxAggregateObjectParameters>(
            dynamic_cast<AxAggregateObjectParameters*>(record.release()));
    }
    std::unique_ptr<AxAggregateObjectParameters> platoon()
    {
        return unit(created("(platoon (parameter-type \"aggregate-object-param\") (formation-list"
                            " (default-formation \"wedge\")"
                            " (formation-entry (formation-type \"column\"))"
                            " (formation-entry (formation-type \"wedge\"))))"));
    }
};

class Refusing : public AxAggregateObjectParameters
{
public:
    using AxAggregateObjectParameters::AxAggregateObjectParameters;
    bool createRemoteSubComponentTypes() override { return false; }
};
} // namespace

TEST_F(AxAggregateObjectParametersTest, FindsFormationsByNameElseTheDefault)
{
    auto const record = platoon();
    ASSERT_TRUE(record);
    AxString found = "untouched";
    EXPECT_EQ(record->getFormation("column", &found), &record->formationTable()->lookup("column")->formation());
    EXPECT_EQ(found, "column");
    AxFormation const* const fallback = record->getFormation("unknown", &found);
    EXPECT_EQ(fallback, record->getDefaultFormation());
    EXPECT_EQ(fallback->formationType(), "wedge");
    EXPECT_EQ(found, "wedge");
    EXPECT_EQ(record->getFormation("unknown", nullptr), fallback);
    EXPECT_EQ(warnings.text(), "");
}

TEST_F(AxAggregateObjectParametersTest, EmptyTableHasNoFormationAndLeavesTheName)
{
    auto const record = unit(made("aggregate-object-param"));
    AxString found = "untouched";
    EXPECT_EQ(record->getFormation("column", &found), nullptr);
    EXPECT_EQ(record->getDefaultFormation(), nullptr);
    EXPECT_EQ(found, "untouched");
    EXPECT_EQ(warnings.text(), "");
}

TEST_F(AxAggregateObjectParametersTest, WithoutInitBothQueriesWarnInTheSameWords)
{
    AxAggregateObjectParameters const record("u", nullptr);
    AxString found = "untouched";
    EXPECT_EQ(record.formationTable(), nullptr);
    EXPECT_EQ(record.getFormation("column", &found), nullptr);
    EXPECT_EQ(record.getDefaultFormation(), nullptr);
    EXPECT_EQ(found, "untouched");
    EXPECT_EQ(warnings.text(), "AxAggregateObjectParameters::getFormation() - NULL formation table\n"
                               "AxAggregateObjectParameters::getFormation() - NULL formation table\n");
}

TEST_F(AxAggregateObjectParametersTest, InitAgainKeepsTheTable)
{
    auto const record = platoon();
    AxFormationTable const* const table = record->formationTable();
    int const members = record->registry()->count();
    EXPECT_TRUE(record->init());
    EXPECT_EQ(record->formationTable(), table);
    EXPECT_EQ(table->count(), 2);
    EXPECT_EQ(record->registry()->count(), members);
}

TEST_F(AxAggregateObjectParametersTest, NoTableWhenTheBaseRefuses)
{
    Refusing record("u", nullptr);
    EXPECT_FALSE(record.init());
    EXPECT_EQ(record.formationTable(), nullptr);
    EXPECT_EQ(warnings.text(), "Couldn't create remote composed object types\n");
}

TEST_F(AxAggregateObjectParametersTest, FormationsAreCopiedComparedAndInherited)
{
    auto const record = platoon();
    auto const clone = unit(RecordPtr(record->clone("platoon", nullptr)));
    EXPECT_TRUE(*clone == *record);
    EXPECT_EQ(clone->writtenText(), record->writtenText());
    EXPECT_NE(clone->formationTable(), record->formationTable());
    clone->formationTable()->setDefaultFormation("column");
    EXPECT_TRUE(*clone != *record);
    *clone = *record;
    EXPECT_TRUE(*clone == *record);

    auto const heir = unit(made("aggregate-object-param"));
    std::string const before = heir->writtenText();
    heir->inheritValues(record.get());
    EXPECT_EQ(heir->getDefaultFormation()->formationType(), "wedge");
    EXPECT_EQ(heir->writtenText(), before);
}
