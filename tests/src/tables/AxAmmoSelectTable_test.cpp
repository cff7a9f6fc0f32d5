#include "AxAmmoSelectTable.h"

#include "AxSinkScope.h"
#include "AxTargetPriorityList.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>

namespace
{
char const* const mainGunAmmo = R"((main-gun-ammo
  (ammo-select (target-type 1 1 225 1 1 3 0) (ammo (munition (munition-name "sabot"))))
  (ammo-select (target-type 1 1 225 -1 -1 -1 -1) (ammo (munition (munition-name "heat"))))
  (ammo-select (target-type 1 1 -1 -1 -1 -1 -1) (ammo (munition (munition-name "he")) (munition (munition-name "heat"))))))";

std::string namesOf(AxSimMunitionList const& munitions)
{
    std::string names;
    for (AxSimMunition const* munition : munitions)
    {
        names += munition->munitionName().string() + ' ';
    }
    return names;
}
} // namespace

TEST(AxAmmoSelectTable, ExactTypeWinsElseTheLastFittingPattern)
{
    AxAmmoSelectTable table;
    readFrom(table, mainGunAmmo);
    AxEntityType matched;
    EXPECT_EQ(namesOf(table.simMunitionList({1, 1, 225, 1, 1, 3, 0}, &matched)), "sabot ");
    EXPECT_EQ(matched, AxEntityType(1, 1, 225, 1, 1, 3, 0));
    EXPECT_EQ(namesOf(table.simMunitionList({1, 1, 225, 1, 1, 2, 0}, &matched)), "he heat ");
    EXPECT_EQ(matched, AxEntityType(1, 1, -1, -1, -1, -1, -1));
    EXPECT_EQ(namesOf(table.simMunitionList({1, 1, 222, 1, 1, 2, 0})), "he heat ");
}

TEST(AxAmmoSelectTable, MissAnswersTheEmptyListOfTheTable)
{
    AxAmmoSelectTable const table;
    AxEntityType matched(9, 9, 9, 9, 9, 9, 9);
    AxSinkScope verbose(AxVerbose);
    AxSinkScope warnings(AxWarn);
    AxSimMunitionList const& none = table.simMunitionList({1, 2, 225, 1, 1, 1, 0}, &matched);
    EXPECT_TRUE(none.isEmpty());
    EXPECT_EQ(&none, &table.simMunitionList({}));
    EXPECT_EQ(matched.kind(), 9);
    EXPECT_EQ(verbose.text(), "No munition list found for 1 2 225 1 1 1 0\nNo munition list found for 0 0 0 0 0 0 0\n");
    EXPECT_EQ(warnings.text(), "");
}

TEST(AxAmmoSelectTable, KeepsElementsOfKindsThatItDoesNotKnow)
{
    AxAmmoSelectTable table("t", nullptr);
    AxTargetPriorityList priorities("t", nullptr);
    AxSimMunitionList munitions("t", nullptr);
    for (AxRwList* const list : std::initializer_list<AxRwList*>{&table, &priorities, &munitions})
    {
        AxSinkScope warnings(AxWarn);
        char const* const text = "(t\n  (comment)\n  (future (x 1) (y)))\n";
        readFrom(*list, text);
        EXPECT_EQ(list->count(), 0);
        EXPECT_EQ(list->writtenText(), text);
        EXPECT_NE(warnings.text().find("2:4: warning: unknown element \"comment\""), std::string::npos)
            << warnings.text();
    }
    readFrom(table, "(t (any-word (target-type 1 1 1 1 1 1 1)) (ammo-select) (other $all))");
    EXPECT_EQ(table.count(), 3);
}

TEST(AxAmmoSelectTable, CopiesAndRoundTrips)
{
    AxAmmoSelectTable table("main-gun-ammo", nullptr);
    readFrom(table, mainGunAmmo);
    AxAmmoSelectTable again("main-gun-ammo", nullptr);
    readFrom(again, table.writtenText());
    EXPECT_TRUE(again == table);
    AxAmmoSelectTable copy(table);
    EXPECT_TRUE(copy == table);
    EXPECT_EQ(copy.writtenText(), table.writtenText());
    (*copy.begin())->simMunitionList().addSimMunition(AxSimMunition("munition", nullptr));
    EXPECT_FALSE(copy == table);
    copy = table;
    EXPECT_TRUE(copy == table);
}

TEST(AxSimMunitionList, FindsTheFirstOfANameAndRemovesOneElement)
{
    AxSimMunitionList list("ammo", nullptr);
    readFrom(list,
             "(ammo (munition (munition-name \"a\")) (m (munition-name \"b\")) (munition (munition-name \"b\")))");
    EXPECT_EQ(list.count(), 3);
    AxSimMunition* const second = list.lookupSimMunition("b");
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(AxRwList::element(list.first()->next()), second);
    EXPECT_TRUE(list.removeSimMunition(second));
    AxSimMunition stranger("munition", nullptr);
    EXPECT_FALSE(list.removeSimMunition(&stranger));
    EXPECT_NE(list.lookupSimMunition("b"), nullptr);
    EXPECT_EQ(list.lookupSimMunition("c"), nullptr);
    EXPECT_EQ(list.writtenText(),
              "(ammo\n  (munition\n    (munition-name \"a\"))\n  (munition\n    (munition-name \"b\")))\n");
}
