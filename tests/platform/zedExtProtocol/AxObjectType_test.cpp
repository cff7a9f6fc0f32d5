#include "AxObjectType.h"

#include <random>
#include <unordered_set>

#include <gtest/gtest.h>

namespace
{
AxObjectType randomType(std::mt19937& random)
{
    AxObjectType::Fields fields{};
    for (std::int32_t& field : fields)
    {
        field = static_cast<std::int32_t>(random() % 3) - 1;
    }
    return AxObjectType(fields);
}
} // namespace

TEST(AxObjectType, OrdersBySuperTypeFirst)
{
    AxObjectType const general(1, 1, 225, -1, -1, -1, -1, 1), special(1, 1, 225, 1, -1, -1, -1, 1),
        tank(1, 1, 225, 1, 1, 3, 0, 1);
    EXPECT_LT(general, special);
    EXPECT_LT(special, tank);
    EXPECT_LT(tank, AxObjectType(1, 0, 0, 0, 0, 0, 0, 3));
    EXPECT_LT(AxObjectType(9, 9, 9, 9, 9, 9, 9, AxObjectType::theCatchAllSuperType),
              AxObjectType(0, 0, 0, 0, 0, 0, 0, -1));
}

TEST(AxObjectType, StandsBehindEveryPatternThatCoversIt)
{
    std::mt19937 random(1);
    for (int round = 0; round < 200000; ++round)
    {
        AxObjectType const type = randomType(random), pattern = randomType(random);
        bool expected = true;
        for (std::size_t i = 0; i < AxObjectType::theNumFields; ++i)
        {
            expected = expected && (pattern.fields()[i] == -1 || pattern.fields()[i] == type.fields()[i]);
        }
        ASSERT_EQ(type.matchPattern(pattern), expected);
        ASSERT_TRUE(!expected || pattern <= type);
    }
}

TEST(AxObjectType, TakesOnlyMinusOneAsWildcard)
{
    AxObjectType const tank(1, 1, 225, 1, 1, 3, 0, 1);
    EXPECT_TRUE(tank.matchPattern({1, 1, 225, 1, 1, -1, -1, -1}));
    EXPECT_FALSE(tank.matchPattern({1, 1, 225, 1, 1, 3, 0, 0}));
    EXPECT_FALSE(tank.matchPattern({1, 1, 225, 1, 1, 3, 0, AxObjectType::theCatchAllSuperType}));
    EXPECT_FALSE(AxObjectType(1, 1, 225, 1, 1, -1, -1, 1).matchPattern(tank));
}

TEST(AxObjectType, WritesTheSuperTypeOnlyWhenGiven)
{
    EXPECT_EQ(AxObjectType(1, 2, 225, 1, 1, 0, 0).string(), "1:2:225:1:1:0:0");
    EXPECT_EQ(AxObjectType(1, 1, 225, 1, 1, 3, 0, 1).string(), "1:1:1:225:1:1:3:0");
    EXPECT_EQ(AxObjectType(1, 1, 225, 1, 1, 3, 0, -2).string("_"), "-2_1_1_225_1_1_3_0");
    EXPECT_EQ(AxObjectType::nullType().string(), "0:0:0:0:0:0:0");
}

TEST(AxObjectType, ReadsWhatItWrites)
{
    std::mt19937 random(2);
    for (int round = 0; round < 1000; ++round)
    {
        AxObjectType const type = randomType(random);
        AxObjectType read;
        ASSERT_TRUE(AxObjectType::fromString(type.string().string(), read));
        ASSERT_EQ(read, type);
        ASSERT_EQ(std::hash<AxObjectType>()(read), std::hash<AxObjectType>()(type));
    }
    AxObjectType type(1, 1, 225, 1, 1, 3, 0, 1);
    EXPECT_FALSE(AxObjectType::fromString("1 2 3 4 5 6", type));
    EXPECT_FALSE(AxObjectType::fromString("1 2 3 4 5 6 7 8 9", type));
    EXPECT_FALSE(AxObjectType::fromString("1:2:3:4:5:6:7:many", type));
    EXPECT_EQ(type, AxObjectType(1, 1, 225, 1, 1, 3, 0, 1));
}

TEST(AxObjectType, ConvertsFromAndToEntityTypes)
{
    AxEntityType const tank(1, 1, 225, 1, 1, 3, 0);
    EXPECT_EQ(AxObjectType(tank).superType(), 1);
    EXPECT_EQ(AxObjectType(tank, 4), AxObjectType(1, 1, 225, 1, 1, 3, 0, 4));
    EXPECT_EQ(AxObjectType(tank, 4).entityType(), tank);
}

TEST(AxObjectType, NamesItsFields)
{
    AxObjectType type;
    type.setSuperType(1);
    type.setKind(2);
    type.setDomain(3);
    type.setCountry(4);
    type.setCategory(5);
    type.setSubcategory(6);
    type.setSpecific(7);
    type.setExtra(8);
    EXPECT_EQ(type, AxObjectType(AxObjectType::Fields{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(type.entityType(), AxEntityType(2, 3, 4, 5, 6, 7, 8));
}
