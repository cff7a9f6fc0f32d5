#include "AxString.h"

#include <memory>
#include <sstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

TEST(AxString, TakesNullPointersAsEmptyText)
{
    char const* const null = nullptr;
    EXPECT_TRUE(AxString(null).isNull());
    EXPECT_TRUE(AxString("") == null);
    AxString text("a");
    text += null;
    EXPECT_EQ(text, "a");
}

TEST(AxString, ComparesWithEveryKindOfText)
{
    AxString const text("mass");
    EXPECT_EQ(text, "mass");
    EXPECT_EQ("mass", text);
    EXPECT_EQ(text, std::string("mass"));
    EXPECT_EQ(text, std::string_view("mass"));
    EXPECT_NE(text, AxString("Mass"));
    EXPECT_LT(text, "massive");
    EXPECT_LT(AxString("z"), AxString("\xC3\xA4"));
}

TEST(AxString, AssignsThroughItsBase)
{
    struct Upper : AxString
    {
        AxString& operator=(AxString const& other) override { return AxString::operator=(AxString(other) + "!"); }
    };
    Upper derived;
    AxString& base = derived;
    base = AxString("a");
    EXPECT_EQ(derived, "a");
    AxString const given("b");
    base = given;
    EXPECT_EQ(derived, "b!");
}

TEST(AxString, JoinsAndPrints)
{
    std::ostringstream out;
    out << "a" + AxString("b") + std::string("c") + AxString::fromUnsigned(4294967295U);
    EXPECT_EQ(out.str(), "abc4294967295");
}
