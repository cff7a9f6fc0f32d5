#include "AxRwVariableBindings.h"

#include "AxRwReal.h"
#include "AxRwString.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>

TEST(AxRwVariableBindings, AnswersValuesAsText)
{
    AxRwVariableBindings set;
    readFrom(set, "(variable-bindings (a \"x y\") (b word) (c 1.50 2) (a again))");
    bool isFound = false;
    EXPECT_EQ(set.stringValue("a", &isFound), "again");
    EXPECT_TRUE(isFound);
    EXPECT_EQ(set.stringValue("b"), "word");
    EXPECT_EQ(set.stringValue("c"), "1.50 2");
    EXPECT_EQ(set.stringValue("d", &isFound), "");
    EXPECT_FALSE(isFound);
    EXPECT_EQ(set.names(), (std::vector<AxSymbolString>{"a", "b", "c"}));
    EXPECT_TRUE(set.remove("b"));
    EXPECT_FALSE(set.remove("b"));
}

TEST(AxRwVariableBindings, ExpandsReferencesTheFirstSetFirst)
{
    AxRwVariableBindings inner;
    AxRwVariableBindings outer;
    readFrom(inner, "(inner (root \"$(dir)/data\") (alias $root) (loop \"<$(loop)>\"))");
    readFrom(outer, "(outer (dir \"/opt\") (root \"hidden\"))");
    struct
    {
        char const* text;
        char const* expanded;
        bool isComplete;
        char const* first;
    } const cases[] = {
        {"", "", true, ""},
        {"plain $ $( $x", "plain $ $( $x", true, ""},
        {"$(root)/a", "/opt/data/a", true, "root"},
        {"$(alias)", "/opt/data", true, "alias"},
        {"$$(root) $(dir)$(dir)", "$(root) /opt/opt", true, "dir"},
        {"$(none)/$(dir)", "$(none)//opt", false, "none"},
        {"a$", "a$", true, ""},
    };
    for (auto const& one : cases)
    {
        bool isComplete = false;
        AxSymbolString first;
        EXPECT_EQ(AxRwVariableBindings::expand(one.text, {&inner, &outer}, &isComplete, &first), one.expanded);
        EXPECT_EQ(isComplete, one.isComplete) << one.text;
        EXPECT_EQ(first, one.first);
    }
    bool isComplete = true;
    AxRwVariableBindings::expand("$(loop)", {&inner}, &isComplete);
    EXPECT_FALSE(isComplete);
}

TEST(AxRwVariableBindings, VariablesThatDoubleEachOtherStayAsTheyAreWritten)
{
    std::string const large(1 << 20, 'x');
    std::string many = "(set (big \"" + large + "\") (sixteen \"";
    for (int i = 0; i < 17; ++i)
    {
        many += "$(big)";
    }
    many += "\")";
    for (int i = 0; i < 60; ++i)
    {
        std::string const next = "$(v" + std::to_string(i + 1) + ')';
        many += " (v" + std::to_string(i) + " \"" + next + next + "\")";
    }
    AxRwVariableBindings set;
    readFrom(set, many + " (v60 \"x\"))");
    ReportedFindings findings;
    for (char const* text : {"<$(v0)>", "<$(sixteen)>"})
    {
        bool isComplete = true;
        EXPECT_EQ(AxRwVariableBindings::expand(text, {&set}, &isComplete), text);
        EXPECT_FALSE(isComplete);
    }
    EXPECT_EQ(findings.codes(), "variable-limit@0:0 variable-limit@0:0");
    AxRwString name("name", nullptr);
    readFrom(name, "\n(name \"<$(v0)>\")", {&set});
    EXPECT_EQ(name.value(), "<$(v0)>");
    EXPECT_EQ(name.writtenText(), "(name \"<$(v0)>\")\n");
    EXPECT_EQ(findings.codes(), "variable-limit@0:0 variable-limit@0:0 variable-limit@2:1");
}

TEST(AxRwVariableBindings, FeedsMembersThatAreBoundLater)
{
    AxRwString path("path", nullptr);
    AxRwReal mass("mass", nullptr);
    readFrom(path, "(path \"$(dir)/a\")");
    readFrom(mass, "(mass $m)");
    EXPECT_FALSE(path.variableIsBound());
    AxRwVariableBindings set;
    set.setString("dir", "/opt");
    readFrom(mass, "(mass $m)", {&set});
    path.bindLocalVariables({&set});
    mass.bindLocalVariables({&set});
    EXPECT_EQ(path.value(), "/opt/a");
    EXPECT_TRUE(path.variableIsBound());
    EXPECT_FALSE(mass.variableIsBound());
    EXPECT_EQ(path.writtenText(), "(path \"$(dir)/a\")\n");
}

TEST(AxRwVariableBindings, KeepsWhatIsNoVariable)
{
    ReportedFindings findings;
    AxRwVariableBindings set;
    readFrom(set, "(variable-bindings (a 1) (b) 7 (c 2))");
    EXPECT_EQ(findings.codes(), "not-a-variable@1:26 not-a-variable@1:30");
    EXPECT_EQ(set.writtenText(), "(variable-bindings\n  (a 1)\n  (c 2)\n  (b)\n  7)\n");
}

TEST(AxRwVariableBindings, AreEqualWithEqualValuesInAnyOrder)
{
    struct
    {
        char const* items;
        bool isEqual;
    } const cases[] = {{"(a 1) (b x y)", true},
                       {"(b x y) (a 1)", true},
                       {"(a 1)", false},
                       {"(a 1) (b x y) (c 1)", false},
                       {"(a 1) (c x y)", false},
                       {"(a 2) (b x y)", false},
                       {"(a 1) (b \"x\" y)", false},
                       {"", false}};
    AxRwVariableBindings set;
    readFrom(set, "(variable-bindings (a 1) (b x y))");
    for (auto const& [items, isEqual] : cases)
    {
        AxRwVariableBindings other;
        readFrom(other, "(variable-bindings " + std::string(items) + ")");
        EXPECT_EQ(set.equals(other), isEqual) << items;
        EXPECT_EQ(other.equals(set), isEqual) << items;
    }
    AxRwVariableBindings copy(set);
    set.addAllFrom(set);
    EXPECT_TRUE(set.equals(copy));
}

TEST(AxRwVariableBindings, FindsEachOfMany)
{
    AxRwVariableBindings set;
    auto const name = [](int i) { return AxSymbolString(AxString("v" + std::to_string(i))); };
    for (int i = 0; i < 200; ++i)
    {
        set.setString(name(i % 100), AxString(std::to_string(i)));
    }
    EXPECT_EQ(set.names().size(), 100u);
    EXPECT_EQ(set.stringValue(name(3)), "103");
    EXPECT_TRUE(set.remove(name(3)));
    EXPECT_EQ(set.find(name(3)), nullptr);
    EXPECT_EQ(set.stringValue(name(99)), "199");
    AxRwVariableBindings copy;
    copy = set;
    set.clear();
    EXPECT_EQ(set.find(name(99)), nullptr);
    EXPECT_EQ(copy.stringValue(name(99)), "199");
}
