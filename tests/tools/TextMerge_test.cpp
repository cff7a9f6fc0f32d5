#include "TextMerge.h"

#include "TextTree.h"

#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <random>
#include <string>

namespace
{
struct Merging
{
    char const* name;
    char const* base;
    char const* ours;
    char const* theirs;
    char const* merged;
};

class TextMergeTest : public testing::TestWithParam<Merging>
{
};

TEST_P(TextMergeTest, Merges)
{
    Merging const& merging = GetParam();
    MergeResult const result = mergeTexts(merging.base, merging.ours, merging.theirs, {});
    EXPECT_EQ(result.text, merging.merged);
    EXPECT_EQ(result.conflicts.empty(), result.text.find("<<<<<<<") == std::string::npos);
}

Merging const theMergings[] = {
    {"DifferentKeywordsAndTheLayoutOfOurs", "(tank (mass 5.0) (max-speed 18.0))",
     "(tank ; ours\n  (mass   6.0) ; heavy\n  (max-speed 18.0))\n", "(tank (mass 5.0) (max-speed 19.0))",
     "(tank ; ours\n  (mass   6.0) ; heavy\n  (max-speed 19.0))\n"},
    {"TheSameChangeOnBothSides", "(a (x 1))", "(a (x 2) (y 1))", "(a (x 2) (z 1))", "(a (x 2) (z 1) (y 1))"},
    {"WhatIsNewBehindWhatItStandsBehind", "(a\n (x 1)\n (y 1))", "(a\n    (x 1)\n    (y 2))",
     "(a\n (x 1)\n ; news\n (new\n  (p 1)) ; end\n (y 1))",
     "(a\n    (x 1)\n    ; news\n    (new\n     (p 1)) ; end\n    (y 2))"},
    {"RemovedWithItsComment", "(a\n (x 1) ; one\n (y 1) ; two\n)", "(a\n (x 2) ; one\n (y 1) ; two\n)",
     "(a\n (x 1) ; one\n)", "(a\n (x 2) ; one\n)"},
    {"NothingRunsIntoAComment", "(a\n (x 1)\n (y 1))", "(a\n (x 2) ; ours\n (y 1))", "(a\n (x 1))",
     "(a\n (x 2) ; ours\n)"},
    {"DeepInside", "(a (s (g (r 6.0) (k 1)) (h (r 1))))", "(a (s (g (r 7.0) (k 1)) (h (r 1))))",
     "(a (s (g (r 6.0) (k 2)) (h (r 1) (q 1))))", "(a (s (g (r 7.0) (k 2)) (h (r 1) (q 1))))"},
    {"ChangedOnBothSides", "(a\n (x 1)\n (y 1))\n", "(a\n (x 2) ; ours\n (y 1))\n", "(a\n (x 3)\n (y 2))\n",
     "(a\n<<<<<<< ours\n (x 2) ; ours\n=======\n (x 3)\n>>>>>>> theirs\n (y 2))\n"},
    {"RemovedHereChangedThere", "(a\n (x 1)\n (y 1))", "(a\n (x 1))", "(a\n (x 1)\n (y 2))",
     "(a\n (x 1)\n<<<<<<< ours\n=======\n (y 2)\n>>>>>>> theirs\n)"},
    {"ChangedHereRemovedThere", "(a\n (x 1)\n (y 1))", "(a\n (x 1)\n (y 2))", "(a\n (x 1))",
     "(a\n (x 1)\n<<<<<<< ours\n (y 2)\n=======\n>>>>>>> theirs\n)"},
    {"ElementsByWhatNamesThem", "(r (resource (resource-name \"a\") (amount 1)))",
     "(r (resource (resource-name \"a\") (amount 1)) (resource (resource-name \"b\") (amount 1)))",
     "(r (resource (resource-name \"c\") (amount 1)) (resource (resource-name \"a\") (amount 2)))",
     "(r (resource (resource-name \"c\") (amount 1)) (resource (resource-name \"a\") (amount 2)) "
     "(resource (resource-name \"b\") (amount 1)))"},
    {"ConnectionsOfBoth", "(c (connect a b) (connect c d))", "(c (connect c d) (connect e f))",
     "(c (connect a b) (connect c d) (connect g h))", "(c (connect c d) (connect g h) (connect e f))"},
    {"PlacesInDifferentGaps", "(p (o 1) (o 2) (o 3))", "(p (o 9) (o 1) (o 2) (o 3))", "(p (o 1) (o 2) (o 3) (o 8))",
     "(p (o 9) (o 1) (o 2) (o 3) (o 8))"},
    {"PlacesInOneGap", "(p (o 1) (o 2))", "(p (o 1) (o 2) (o 3))", "(p (o 1) (o 2) (o 4))",
     "(p (o 1) (o 2)\n<<<<<<< ours\n=======\n(o 4)\n>>>>>>> theirs\n (o 3))"},
    {"CommentsOfTheirs", "; tank\n(a\n (x 1) ; m\n (y 1))", "; tank\n(a\n (x 1) ; m\n (y 2))",
     "; main tank\n(a\n (x 1) ; metres\n ; of this\n (y 1)\n ; end\n)",
     "; main tank\n(a\n (x 1) ; metres\n ; of this\n (y 2)\n ; end\n)"},
    {"AddedOnBothSidesWithoutABase", "", "(a (x 1) (y 1))", "(a (x 1) (z 1))", "(a (x 1) (z 1) (y 1))"},
    {"UnknownShapes", "(a (x 1 (y) 2) (z 1))", "(a (x 1 (y) 2) (z 2))", "(a (x 1 (y) 3) (z 1))",
     "(a (x 1 (y) 3) (z 2))"},
    {"OrderOfMembersIsLayout", "(a (x 1) (y 1))", "(a (x 2) (y 1))", "(a (y 2) (x 1))", "(a (x 2) (y 2))"},
    {"OrderOfElements", "(a (s (x 1)) (t (x 1)))\n", "(a (s (x 2)) (t (x 1)))\n", "(a (t (x 1)) (s (x 1)))\n",
     "<<<<<<< ours\n(a (s (x 2)) (t (x 1)))\n=======\n(a (t (x 1)) (s (x 1)))\n>>>>>>> theirs\n"},
    {"OrderOfElementsWhereOursHasAnotherLayout", "(a (s (x 1)) (t (x 1)))", "(a\n (s (x 1))\n (t (x 1)))",
     "(a (t (x 1)) (s (x 1)))", "(a (t (x 1)) (s (x 1)))"},
    {"LineEndsOfOurs", "(a\n (x 1))\n", "(a\r\n (x 2))\r\n", "(a\n (x 1)\n (y 1))\n", "(a\r\n (x 2)\r\n (y 1))\r\n"},
    {"AttributesOfXml", "<a x=\"1\" y=\"1\" name=\"n\" u=\"1\"/>", "<a x=\"2\"  y=\"1\" name=\"n\" u=\"1\"/>",
     "<a x=\"1\" y=\"2\" v='\"' name=\"n\"/>", "<a x=\"2\"  y=\"2\" v='\"' name=\"n\"/>"},
    {"ElementsOfXmlAndTheLayoutOfOurs", "<r>\n <a name=\"s\" v=\"1\"/>\n <a name=\"t\"/>\n <!-- u -->\n <u/>\n</r>\n",
     "<?xml version=\"1.0\"?>\n<r>\n    <a name=\"s\" v=\"2\"/> <!-- s -->\n    <a\n     name=\"t\"/>\n    <!-- u -->\n"
     "    <u/>\n</r>\n",
     "<r>\n <a name=\"s\" v=\"1\"/>\n <!-- news -->\n <b>\n  <c/>\n </b>\n <a name=\"t\" w=\"1\"/>\n</r>\n",
     "<?xml version=\"1.0\"?>\n<r>\n    <a name=\"s\" v=\"2\"/> <!-- s -->\n    <!-- news -->\n    <b>\n     <c/>\n"
     "    </b>\n    <a\n     name=\"t\" w=\"1\"/>\n</r>\n"},
    {"TextsOfXmlAsAWhole", "<r><a>x y</a><b/></r>", "<r><a>x  y</a><b/></r>", "<r><a>x y</a><b><c/>&amp;</b></r>",
     "<r><a>x  y</a><b><c/>&amp;</b></r>"},
    {"XmlChangedOnBothSides", "<r>\n <a x=\"1\"/>\n <b/>\n</r>", "<r>\n <a x=\"2\"/>\n <b/>\n</r>",
     "<r>\n <a x=\"3\"/>\n <b y=\"1\"/>\n</r>",
     "<r>\n <a \n<<<<<<< ours\nx=\"2\"\n=======\nx=\"3\"\n>>>>>>> theirs\n/>\n <b y=\"1\"/>\n</r>"},
    {"EncodingsOfXml", "<a>\n<b x=\"\xC3\xA4\"/>\n<c/>\n</a>\n", "<a>\n<b x=\"\xC3\xA4\"/>\n<c y=\"1\"/>\n</a>\n",
     "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<a>\n<b x=\"\xE4\"/>\n<c/>\n</a>\n",
     "<<<<<<< ours\n<a>\n<b x=\"\xC3\xA4\"/>\n<c y=\"1\"/>\n=======\n"
     "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<a>\n<b x=\"\xE4\"/>\n<c/>\n>>>>>>> theirs\n</a>\n"},
    {"FirstElementAndAttributeOfXml", "<r>\n<a x=\"1\"/>\n</r>\n", "<r>\n<a x=\"2\"/>\n</r>\n",
     "<r>\n<a x=\"1\"><b/><c/></a>\n</r>\n", "<r>\n<a x=\"2\"><b/><c/></a>\n</r>\n"},
    {"FirstElementBesideOthersOnALine", "<r>\n  <y/><a x=\"1\"/>\n</r>\n", "<r>\n  <y/><a x=\"2\"/>\n</r>\n",
     "<r>\n  <y/><a x=\"1\">\n    <b/>\n  </a>\n</r>\n", "<r>\n  <y/><a x=\"2\">\n    <b/>\n  </a>\n</r>\n"},
    {"FirstElementBetweenTags", "<r>\n  <a x=\"1\"></a>\n</r>\n", "<r>\n  <a x=\"2\"></a>\n</r>\n",
     "<r>\n  <a x=\"1\">\n    <b/>\n  </a>\n</r>\n", "<r>\n  <a x=\"2\">\n    <b/>\n  </a>\n</r>\n"},
    {"CommentBehindFirstElement", "<r>\n  <a x=\"1\"/>\n</r>\n", "<r>\n  <a x=\"2\"/>\n</r>\n",
     "<r>\n  <a x=\"1\">\n    <b/>\n    <!-- end -->\n  </a>\n</r>\n",
     "<r>\n  <a x=\"2\">\n    <b/>\n    <!-- end -->\n  </a>\n</r>\n"},
    {"NoParameterText", "<a/>\n<b/>\n", "<a/>\n<c/>\n", "<a/>\n<d/>\n",
     "<a/>\n<<<<<<< ours\n<c/>\n=======\n<d/>\n>>>>>>> theirs\n"},
    {"BrokenText", "(a (x 1))", "(a (x 2))", "(a (x 3)",
     "<<<<<<< ours\n(a (x 2))\n=======\n(a (x 3)\n>>>>>>> theirs\n"},
};

INSTANTIATE_TEST_SUITE_P(All, TextMergeTest, testing::ValuesIn(theMergings),
                         [](auto const& merging) { return merging.param.name; });

using Values = std::map<int, int>; // of keyword and value

std::string textOf(Values const& values, std::mt19937& random)
{
    auto const blank = [&random]
    {
        char const* const blanks[] = {" ", "\n  ", "\n ; note\n  ", "  ; behind\n"};
        return blanks[random() % 32 == 0 ? random() % 4 : random() % 2];
    };
    std::string text = "(a";
    for (auto const& [keyword, value] : values)
    {
        text += blank();
        text +=
            "(k" + std::to_string(keyword % 7) + "-" + std::to_string(keyword) + blank() + std::to_string(value) + ")";
    }
    return text + blank() + ")";
}

Values valuesOf(std::string const& text)
{
    Values values;
    TextTree const tree(text);
    for (TextItem item = tree.root().firstValue(); item; item = item.next())
    {
        values[std::stoi(item.head().substr(3))] = std::stoi(item.firstValue().value());
    }
    return values;
}

/// Sets, adds or removes some values with those keywords.
Values changed(Values values, int remainder, std::mt19937& random)
{
    for (int keyword = remainder; keyword < 24; keyword += 2)
    {
        switch (random() % 4)
        {
        case 0:
            values[keyword] = static_cast<int>(random() % 100) + 100;
            break;
        case 1:
            values.erase(keyword);
            break;
        default:
            break;
        }
    }
    return values;
}

TEST(TextMerge, ChangesOfDifferentKeywordsAllArrive)
{
    std::mt19937 random(1);
    int merged = 0;
    for (int i = 0; i < 500; ++i)
    {
        Values const base = changed({{0, 1}, {3, 1}, {8, 1}, {9, 1}, {12, 1}, {15, 1}}, i % 2, random);
        Values const ours = changed(base, 0, random);
        Values const theirs = changed(base, 1, random);
        Values expected = ours;
        for (int keyword = 1; keyword < 24; keyword += 2)
        {
            expected.erase(keyword);
            if (auto const found = theirs.find(keyword); found != theirs.end())
            {
                expected.insert(*found);
            }
        }
        std::string const baseText = textOf(base, random);
        std::string const oursText = textOf(ours, random);
        std::string const theirsText = textOf(theirs, random);
        MergeResult const result = mergeTexts(baseText, oursText, theirsText, {});
        if (result.conflicts.empty()) // comments may be in each other's way
        {
            ++merged;
            EXPECT_EQ(valuesOf(result.text), expected) << baseText << "\n" << oursText << "\n" << theirsText;
        }
        EXPECT_EQ(mergeTexts(baseText, oursText, baseText, {}).text, oursText);
        EXPECT_EQ(mergeTexts(baseText, baseText, theirsText, {}).text, theirsText);
    }
    EXPECT_GT(merged, 250);
}
} // namespace
