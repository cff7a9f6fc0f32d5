#include "AxEntityType.h"

#include <unordered_set>
#include <vector>

#include <gtest/gtest.h>

#include "AxIntegerFields.h"

TEST(AxEntityType, FitsPatternsFieldByField)
{
    AxEntityType const tank(1, 1, 225, 1, 1, 3, 0);
    EXPECT_TRUE(tank.matchPattern(tank));
    EXPECT_TRUE(tank.matchPattern({1, 1, 225, 1, -1, -1, -1}));
    EXPECT_TRUE(tank.matchPattern({-1, -1, -1, -1, -1, -1, -1}));
    EXPECT_FALSE(tank.matchPattern({1, 1, 225, 1, 1, 0, 0}));
    EXPECT_FALSE(tank.matchPattern({1, 1, 225, 1, 1, -2, 0}));
    EXPECT_FALSE(AxEntityType(1, 1, 225, 1, -1, -1, -1).matchPattern(tank));
}

TEST(AxEntityType, ReadsSevenNumbersAndNothingElse)
{
    AxEntityType const expected(1, 2, 225, 1, -1, 0, 9);
    for (char const* text : {"1:2:225:1:-1:0:9", "1 2 225 1 -1 0 9", " 1: 2 :225\t1\n-1 : 0 9 "})
    {
        AxEntityType type;
        EXPECT_TRUE(AxEntityType::fromString(text, type)) << text;
        EXPECT_EQ(type, expected) << text;
    }
    for (char const* text :
         {"", "1:2:3:4:5:6", "1:2:3:4:5:6:7:8", "1:2:3:4:5:6:", ":1:2:3:4:5:6:7", "1::2:3:4:5:6:7", "1:2:3:4:5:6:x",
          "1:2:3:4:5:6:7x", "1:2:3:4:5:6:99999999999", "1.0:2:3:4:5:6:7", "1-2:3:4:5:6:7:8"})
    {
        AxEntityType type = expected;
        EXPECT_FALSE(AxEntityType::fromString(text, type)) << text;
        EXPECT_EQ(type, expected) << text;
    }
}

TEST(AxEntityType, TellsHowManyNumbersATextHolds)
{
    std::vector<std::int32_t> fields(2);
    EXPECT_EQ(axReadIntegerFields("", fields), 0);
    EXPECT_EQ(axReadIntegerFields("4 5 6", fields), 3);
    EXPECT_EQ(fields, (std::vector<std::int32_t>{4, 5}));
    EXPECT_EQ(axReadIntegerFields("4 five", fields), -1);
}

TEST(AxEntityType, WritesSevenFields)
{
    EXPECT_EQ(AxEntityType(1, 2, 225, 1, -1, 0, 9).string(), "1:2:225:1:-1:0:9");
    EXPECT_EQ(AxEntityType(1, 2, 225, 1, -1, 0, 9).string(" "), "1 2 225 1 -1 0 9");
    EXPECT_TRUE(AxEntityType::nullType().isNull());
    EXPECT_FALSE(AxEntityType(0, 0, 0, 0, 0, 0, 1).isNull());
}

TEST(AxEntityType, NamesItsFields)
{
    AxEntityType type;
    type.setKind(1);
    type.setDomain(2);
    type.setCountry(3);
    type.setCategory(4);
    type.setSubcategory(5);
    type.setSpecific(6);
    type.setExtra(7);
    EXPECT_EQ(type, AxEntityType(1, 2, 3, 4, 5, 6, 7));
}

TEST(AxEntityType, IsFoundAmongManyByItsHash)
{
    std::unordered_set<AxEntityType> types;
    std::unordered_set<std::size_t> hashes;
    for (int i = 0; i < 2187; ++i)
    {
        AxEntityType const type(i % 3, i / 3 % 3, i / 9 % 3, i / 27 % 3, i / 81 % 3, i / 243 % 3, i / 729 % 3 - 1);
        types.insert(type);
        hashes.insert(std::hash<AxEntityType>()(type));
    }
    EXPECT_EQ(types.size(), 2187U);
    EXPECT_GT(hashes.size(), 2180U);
    EXPECT_TRUE(types.contains(AxEntityType(2, 2, 2, 2, 2, 2, -1)));
    EXPECT_FALSE(types.contains(AxEntityType(2, 2, 2, 2, 2, 2, 2)));
}
