#include "TextLayout.h"

#include "ExampleTexts.h"
#include "UnifiedDiff.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace
{
std::string formatted(std::string const& file, std::string const& text)
{
    TextReading reading(file);
    return laidOut(TextTree(text), reading);
}

/// The same tokens with other blanks between them, and some comments.
std::string shuffled(std::string const& text, std::mt19937& random)
{
    static constexpr std::string_view theBlanks[] = {" ",      "\n",         "\t",         "\r\n",
                                                     "\n\n\n", " ; note \n", "\n; note\n", "  "};
    TextTree const tree(text);
    std::string out;
    for (TextTree::Token const& token : tree.tokens())
    {
        bool const isBlank = token.kind == TextTree::Kind::Blank;
        bool const endsLine = isBlank && tree.textOf(token).starts_with('\n'); // perhaps that of a comment
        out += endsLine ? "\n" : "";
        out += isBlank || random() % 8 == 0 ? theBlanks[random() % std::size(theBlanks)] : std::string_view();
        out += isBlank ? std::string_view() : tree.textOf(token);
        out += token.kind == TextTree::Kind::Comment ? "\n" : "";
    }
    return out;
}
} // namespace

TEST(TextLayout, PutsAnItemOnALineAndKeepsComments)
{
    struct
    {
        std::string before;
        std::string after;
    } const cases[] = {
        {"", ""},
        {" ; only\n", "; only\n"},
        {"(a)", "(a)\n"},
        {"\xEF\xBB\xBF (a)", "\xEF\xBB\xBF(a)\n"},
        {"\n\xEF\xBB\xBFword", " \xEF\xBB\xBFword\n"}, // no byte-order marks: they begin words
        {"\t\xFF\xFEword", " \xFF\xFEword\n"},
        {"(a (parameter-type t)(mass  5.0)\n\n\n\n(category\n  \"x\" ) )",
         "(a\n  (parameter-type t)\n  (mass 5.0)\n\n  (category \"x\"))\n"},
        {"; 1  \r\n\r\n(a;2\r\n(parameter-type t)\r\n;3\r\n(mass 5.0);4\r\n);5",
         "; 1\n\n(a  ;2\n  (parameter-type t)\n  ;3\n  (mass 5.0)  ;4\n)  ;5\n"},
        {"(a (parameter-type t) (other-support 1.0 ; x\n 2.0\n; y\n3.0))",
         "(a\n  (parameter-type t)\n  (other-support 1.0  ; x\n    2.0\n    ; y\n    3.0))\n"},
        {"(a (parameter-type t) (sensor-signatures (\"x\" 1.0)\n (\"y\" 2.0)) (dr-thresholds (translation 1.0)))",
         "(a\n  (parameter-type t)\n  (sensor-signatures (\"x\" 1.0) (\"y\" 2.0))\n  (dr-thresholds\n"
         "    (translation 1.0)))\n"},
        {"(a (parameter-type t) (new (b 1)(c 2)) (other\n(b 1)(c (d 2))))",
         "(a\n  (parameter-type t)\n  (new (b 1) (c 2))\n  (other\n    (b 1)\n    (c (d 2))))\n"},
        {"(a (parameter-type t))  behind  ) (\n", "(a\n  (parameter-type t))\nbehind  ) (\n"},
        {"(a \"x\n  y\"  ())", "(a \"x\n  y\" ())\n"}};
    for (auto const& [before, after] : cases)
    {
        std::string text = before;
        std::string expected = after;
        for (std::string* each : {&text, &expected})
        {
            if (std::size_t const type = each->find("parameter-type t)"); type != std::string::npos)
            {
                each->replace(type + 15, 1, "\"moving-object-param\"");
            }
        }
        EXPECT_EQ(formatted("a.ope", text), expected);
        EXPECT_EQ(formatted("a.ope", expected), expected);
    }
}

TEST(TextLayout, IsAFixedPointWithTheSameContent)
{
    std::mt19937 random(20);
    for (auto const& [file, text] : exampleTexts())
    {
        if (text.starts_with("<?xml"))
        {
            continue;
        }
        std::string const odd = shuffled(text, random);
        for (std::string const& each : {text, odd})
        {
            std::string const once = formatted(file, each);
            EXPECT_TRUE(haveSameContent(TextTree(each), TextTree(once))) << file;
            EXPECT_EQ(formatted(file, once), once) << file;
        }
    }
}

TEST(TextLayout, TellsOtherContentApart)
{
    EXPECT_TRUE(haveSameContent(TextTree("(a 1) ; x  \n"), TextTree("( a\n1 ) ; x")));
    for (char const* const other : {"(a 1.0)", "(a 1) ; y", "(a (1))", "(a \"1\")", "(a 1) b", "(a 1 1)"})
    {
        EXPECT_FALSE(haveSameContent(TextTree("(a 1)"), TextTree(other))) << other;
    }
}

TEST(UnifiedDiff, ShowsChangedLinesWithTheirSurroundings)
{
    EXPECT_EQ(unifiedDiff("f", "a\nb\n", "a\nb\n"), "");
    EXPECT_EQ(unifiedDiff("f", "1\n2\n3\n4\n5 6\n7\n8\n9\n10\n", "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n"),
              "--- f\n+++ f\n@@ -2,7 +2,8 @@\n 2\n 3\n 4\n-5 6\n+5\n+6\n 7\n 8\n 9\n");
    EXPECT_EQ(unifiedDiff("f", "a", "a\n"), "--- f\n+++ f\n@@ -1 +1 @@\n-a\n\\ No newline at end of file\n+a\n");
    EXPECT_EQ(unifiedDiff("f", "a\n\n\nb\n", "a\n\nb\n"), "--- f\n+++ f\n@@ -1,4 +1,3 @@\n a\n-\n \n b\n");
    std::string far;
    for (int i = 0; i < 20; ++i)
    {
        far += std::to_string(i) + "\n";
    }
    std::string const diff = unifiedDiff("f", " " + far + "x y\n", far + "x\ny\n");
    EXPECT_EQ(diff.substr(0, 30), "--- f\n+++ f\n@@ -1,4 +1,4 @@\n- ");
    EXPECT_NE(diff.find("@@ -18,4 +18,5 @@\n 17\n"), std::string::npos) << diff;
}
