#include "AxHashlist.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

TEST(AxHashlist, ReplacesInPlaceAndHandsTheOldDataOut)
{
    int a = 0, b = 0, c = 0;
    AxHashlist table;
    void* replaced = &a;
    AxListItem* const item = table.add(AxStringHashKey("x"), &a, &replaced);
    EXPECT_EQ(replaced, nullptr);
    table.add(AxStringHashKey("y"), &b);
    EXPECT_EQ(table.add(AxStringHashKey("x"), &c, &replaced), item);
    EXPECT_EQ(replaced, &a);
    EXPECT_EQ(table.count(), 2);
    EXPECT_EQ(table.first()->data(), &c);
    EXPECT_EQ(table.lookup(AxStringHashKey("x")), &c);
}

TEST(AxHashlist, IsExactInItsKeys)
{
    int a = 0;
    AxHashlist table(0);
    table.add(AxStringHashKey("Name"), &a);
    EXPECT_EQ(table.lookup(AxStringHashKey("name")), nullptr);
    EXPECT_EQ(table.remove(AxStringHashKey("name")), nullptr);
    EXPECT_EQ(table.remove(AxStringHashKey("Name")), &a);
    EXPECT_EQ(table.lookup(AxStringHashKey("Name")), nullptr);
    EXPECT_EQ(table.count(), 0);
}

TEST(AxHashlist, KeepsTheOrderOfAddingWhileItGrowsAndShrinks)
{
    std::vector<int> values(500);
    AxHashlist table(2);
    auto const key = [](std::size_t i) { return AxStringHashKey(std::to_string(i)); };
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        table.add(key(i), &values[i]);
    }
    for (std::size_t i = 0; i < values.size(); i += 2)
    {
        EXPECT_EQ(table.remove(key(i)), &values[i]);
    }
    AxListItem const* item = table.first();
    for (std::size_t i = 1; i < values.size(); i += 2, item = item->next())
    {
        ASSERT_EQ(item->data(), &values[i]);
        ASSERT_EQ(table.lookup(key(i)), &values[i]);
        ASSERT_EQ(table.lookup(key(i - 1)), nullptr);
    }
    EXPECT_EQ(item, nullptr);
}
