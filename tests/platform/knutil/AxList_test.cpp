#include "AxList.h"

#include <string>

#include <gtest/gtest.h>

namespace
{
char theLetters[] = "abcdef";

std::string forward(AxList const& list)
{
    std::string text;
    for (AxListItem const* item = list.first(); item != nullptr; item = item->next())
    {
        text += *static_cast<char const*>(item->data());
    }
    return text;
}

std::string backward(AxList const& list)
{
    std::string text;
    for (AxListItem const* item = list.last(); item != nullptr; item = item->previous())
    {
        text += *static_cast<char const*>(item->data());
    }
    return text;
}
} // namespace

TEST(AxList, KeepsItsOrderBothWaysWhereverItemsComeAndGo)
{
    AxList list;
    AxListItem* const c = list.add(&theLetters[2]);
    list.addToStart(&theLetters[0]);
    list.insertBefore(c, &theLetters[1]);
    list.insertAfter(c, &theLetters[3]);
    list.insertBefore(nullptr, &theLetters[4]);
    list.insertAfter(nullptr, &theLetters[5]);
    EXPECT_EQ(forward(list), "fabcde");
    EXPECT_EQ(backward(list), "edcbaf");
    list.remove(list.first());
    list.remove(c);
    list.remove(list.last());
    list.remove(nullptr);
    EXPECT_EQ(forward(list), "abd");
    EXPECT_EQ(backward(list), "dba");
    EXPECT_EQ(list.count(), 3);
}

TEST(AxList, CountsStructuralChanges)
{
    AxList list;
    list.add(nullptr);
    AxListItem* const item = list.add(nullptr);
    item->setData(theLetters);
    EXPECT_EQ(list.changeCount(), 2U);
    list.remove(item);
    EXPECT_EQ(list.changeCount(), 3U);
    list.removeAll();
    EXPECT_EQ(list.changeCount(), 4U);
    list.removeAll();
    EXPECT_EQ(list.changeCount(), 4U);
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(list.last(), nullptr);
}
