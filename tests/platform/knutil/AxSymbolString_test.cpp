#include "AxSymbolString.h"

#include <string>
#include <unordered_set>
#include <vector>

#include <gtest/gtest.h>

TEST(AxSymbolString, IsOnePointerForOneText)
{
    std::string const text = "max-speed";
    AxSymbolString const symbol(text.c_str());
    EXPECT_EQ(symbol, AxSymbolString(AxString(text)));
    EXPECT_EQ(symbol.id(), AxSymbolString(std::string_view(text)).id());
    EXPECT_EQ(AxSymbolString::fromId(symbol.id()), symbol);
    EXPECT_NE(symbol, AxSymbolString("max-Speed"));
    EXPECT_EQ(sizeof symbol, sizeof(void*));
}

TEST(AxSymbolString, HasOneEmptySymbol)
{
    char const* const null = nullptr;
    AxSymbolString const empty;
    EXPECT_TRUE(empty.isNull());
    EXPECT_EQ(empty, AxSymbolString(""));
    EXPECT_EQ(empty, AxSymbolString(null));
    EXPECT_EQ(empty, "");
    EXPECT_STREQ(empty.c_str(), "");
    EXPECT_TRUE(empty.string().isNull());
    EXPECT_FALSE(empty.isBareWord());
}

TEST(AxSymbolString, ConvertsToAndFromStrings)
{
    AxSymbolString const symbol = AxString("turret");
    AxString text = symbol;
    EXPECT_EQ(text, symbol);
    EXPECT_EQ(symbol, text);
    EXPECT_EQ(symbol + "-1", "turret-1");
    text = AxSymbolString("hull");
    EXPECT_EQ(text, "hull");
    EXPECT_LT(text, symbol);
    EXPECT_LT(AxSymbolString("a"), AxSymbolString("b"));
}

TEST(AxSymbolString, FindsOnlyWhatWasInterned)
{
    EXPECT_TRUE(AxSymbolString::find("never-interned-before").isNull());
    EXPECT_TRUE(AxSymbolString::find("never-interned-before").isNull());
    AxSymbolString const symbol("interned-now");
    EXPECT_EQ(AxSymbolString::find("interned-now"), symbol);
}

TEST(AxSymbolString, KeepsTextsOfEveryLengthApart)
{
    std::unordered_set<AxSymbolString> symbols;
    std::vector<AxSymbolString> order;
    std::string text;
    for (int i = 0; i < 20000; ++i)
    {
        text = std::to_string(i) + std::string(static_cast<std::size_t>(i % 23), '\0');
        order.emplace_back(std::string_view(text));
        symbols.insert(order.back());
    }
    EXPECT_EQ(symbols.size(), order.size());
    EXPECT_EQ(order.back().string(), text);
    EXPECT_EQ(order[7].view(), std::string("7") + std::string(7, '\0'));
    EXPECT_EQ(order[7], AxSymbolString(order[7].string()));
}

TEST(AxSymbolString, KnowsWhichNamesNeedNoQuotes)
{
    for (char const* bare : {"a", "120mm-heat", "1:2:225", "inf", "0x10", "5-ton", "a/b*c.d", "<=>", "1e", "+", "-",
                             ".", "1E5", "#%&~^@!?", "\xC3\xBC"})
    {
        EXPECT_TRUE(AxSymbolString(bare).isBareWord()) << bare;
    }
    for (char const* quoted : {"12", "-1.5", "1e9", ".5", "5.", "+3", "1e999", "a b", "$x", "a\\b", "a\"b", "a(b", "a;",
                               "a'b", "a|b", "a,b", "{", "a\x7F", "a\tb"})
    {
        EXPECT_FALSE(AxSymbolString(quoted).isBareWord()) << quoted;
    }
}
