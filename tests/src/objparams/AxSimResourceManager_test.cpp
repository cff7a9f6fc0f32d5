#include "AxSimResourceManager.h"

#include "AxMunitionResource.h"
#include "AxRealResource.h"
#include "RecordFixture.h"

namespace
{
class AxSimResourceManagerTest : public RecordFixture
{
protected:
    AxSimResourceManager resources{"resources", nullptr};
};
constexpr char const* theResourceList = R"((resources
  (real-resource
    (resource-name "fuel")
    (amount 1900.0)
    (capacity 1900.0))
  (munition-resource
    (resource-name "main-gun-heat")
    (amount 16)
    (munition
      (munition-type 1 2 2 225 2 13 1 0)
      (munition-name "120mm-heat")))
  (integer-resource
    (resource-name "crew")
    (amount 4)))
)";
} // namespace

TEST_F(AxSimResourceManagerTest, TextComesBackAsItWas)
{
    ASSERT_TRUE(readFrom(resources, theResourceList));
    EXPECT_EQ(resources.writtenText(), theResourceList);
    EXPECT_TRUE(findings.empty());
    auto const* const heat = dynamic_cast<AxMunitionResource*>(resources.findResource("main-gun-heat"));
    ASSERT_TRUE(heat);
    EXPECT_EQ(heat->amount(), 16);
    EXPECT_EQ(heat->capacity(), -1);
    AxSimResourceManager other("resources", nullptr);
    readCellsInto(other, theResourceList);
    EXPECT_TRUE(other == resources);
}

TEST_F(AxSimResourceManagerTest, CopiesAreDeepAndEqual)
{
    readFrom(resources, theResourceList);
    AxSimResourceManager copy(resources);
    AxSimResourceManager assigned("resources", nullptr);
    assigned = copy;
    EXPECT_TRUE(copy == resources && assigned == resources);
    EXPECT_EQ(assigned.writtenText(), theResourceList);
    EXPECT_TRUE(assigned.removeResource("fuel"));
    EXPECT_FALSE(assigned.removeResource("fuel"));
    EXPECT_FALSE(assigned == resources);
    EXPECT_NE(copy.findResource("fuel"), nullptr);
}

TEST_F(AxSimResourceManagerTest, RepeatedResourceNameReplacesAtTheEnd)
{
    readFrom(resources, theResourceList);
    AxRealResource fuel("any", nullptr);
    fuel.setResourceName("fuel");
    fuel.setAmount(5.0);
    AxSimResource const* const added = resources.addResource(fuel);
    EXPECT_EQ(resources.count(), 3);
    EXPECT_EQ(resources.findResource("fuel"), added);
    EXPECT_EQ(resources.element(resources.last()), added);
    EXPECT_EQ(added->name(), "real-resource");
}

TEST_F(AxSimResourceManagerTest, SameMembersOfAnotherClassAreUnequal)
{
    AxSimResourceManager other("resources", nullptr);
    resources.addResource(new AxIntegerResource("", nullptr));
    other.addResource(new AxMunitionResource("", nullptr));
    EXPECT_FALSE(resources == other);
}

TEST_F(AxSimResourceManagerTest, UnknownTypeIsToldAndKept)
{
    for (bool byCells : {false, true})
    {
        warnings.clear();
        std::string_view const text = "(resources (real-resorce (amount 1.0)) (AxRwReal 3) (integer-resource))";
        byCells ? readCellsInto(resources, text) : static_cast<void>(readFrom(resources, text));
        EXPECT_EQ(warnings.text(), "could not create resource of type \"real-resorce\"\n"
                                   "could not create resource of type \"AxRwReal\"\n");
        ASSERT_FALSE(findings.empty());
        EXPECT_EQ(findings[0].hint, "did you mean \"real-resource\"?");
        EXPECT_EQ(resources.count(), 1);
        EXPECT_EQ(resources.writtenText(),
                  "(resources\n  (real-resorce (amount 1.0))\n  (AxRwReal 3)\n  (integer-resource))\n");
    }
}
