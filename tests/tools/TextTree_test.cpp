#include "TextTree.h"

#include "AxlFunctions.h"
#include "ExampleTexts.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace
{
std::string at(unsigned line, unsigned column)
{
    return " " + std::to_string(line) + ":" + std::to_string(column) + "\n";
}

void describe(AxlObj const& cell, std::string& out)
{
    out += cell.isPair() || cell.nil() ? "list" : cell.isString() ? "string " : cell.isNumber() ? "number " : "word ";
    out += cell.pname().string() + at(cell.line(), cell.column());
    for (AxlObj const* rest = &cell; rest->isPair(); rest = rest->cdr())
    {
        describe(*rest->car(), out);
    }
    out += cell.isPair() || cell.nil() ? "end\n" : "";
}

void describe(TextItem item, std::string& out)
{
    out += item.isList() ? "list" : item.isString() ? "string " : item.isNumber() ? "number " : "word ";
    out += item.value() + at(item.place().line, item.place().column);
    for (TextItem child = item.firstChild(); child; child = child.next())
    {
        describe(child, out);
    }
    out += item.isList() ? "end\n" : "";
}

std::string describe(AxlSyntaxError const& fault)
{
    return std::string("fault ") + fault.code() + " " + fault.text() + at(fault.line(), fault.column());
}

/// What the library reads.
std::string readCells(std::string const& text)
{
    try
    {
        AxlInputStream stream(text);
        AxlObjPtr const cell = AxcRead(stream);
        std::string out;
        if (!cell->isEof())
        {
            describe(*cell, out);
        }
        return out;
    }
    catch (AxlSyntaxError const& fault)
    {
        return describe(fault);
    }
}

std::string readTree(TextTree const& tree)
{
    if (!tree.isReadable())
    {
        return describe(tree.faults().front());
    }
    std::string out;
    if (tree.root())
    {
        describe(tree.root(), out);
    }
    return out;
}

void expectAgreement(std::string const& text)
{
    TextTree const tree(text);
    ASSERT_EQ(readTree(tree), readCells(text)) << text;
    std::size_t end = 0;
    for (TextTree::Token const& token : tree.tokens())
    {
        ASSERT_EQ(token.begin, end) << text;
        ASSERT_LT(token.begin, token.end) << text;
        end = token.end;
        if (token.begin != 0) // a byte-order mark stands at no place
        {
            ASSERT_EQ(tree.offset(tree.place(token.begin)), token.begin) << text;
        }
    }
    ASSERT_EQ(end, text.size()) << text;
}

} // namespace

TEST(TextTree, AgreesWithTheReaderOnEveryExample)
{
    std::vector<ExampleText> const examples = exampleTexts();
    EXPECT_GT(examples.size(), 100U);
    for (ExampleText const& example : examples)
    {
        expectAgreement(example.text);
    }
}

TEST(TextTree, AgreesWithTheReaderOnOddTexts)
{
    std::string const deepest = std::string(1000, '(') + std::string(1000, ')');
    for (std::string const& text : {std::string(),
                                    std::string(" ; nothing"),
                                    std::string("\xEF\xBB\xBF(a 1)"),
                                    std::string("\xEF\xBB\xBF"),
                                    std::string("a\"b\"1.5(c);d\n"),
                                    std::string("(\"\\\"\" \"\\\\\" \"\\n\" \"a\nb\" \"\\\\\\\"\")"),
                                    std::string("(1 +1 -.5 1. . - 1e5 1e 1e999 0x10 120mm-heat inf)"),
                                    std::string("(a \x7F b)"),
                                    std::string("(a \0 b)", 7),
                                    std::string("(a \"\0\" ;\0\n b)", 13),
                                    std::string("\xC3\xA4(a) ) ("),
                                    std::string("(a) ) \"open"),
                                    std::string(")"),
                                    std::string("(a (b)"),
                                    std::string("(a \"b) \\"),
                                    std::string("(a \"\\\""),
                                    std::string("(a\r\n\t\f\v(b))"),
                                    deepest,
                                    "(" + deepest + ")",
                                    deepest + " (a"})
    {
        expectAgreement(text);
    }
}

TEST(TextTree, AgreesWithTheReaderOnMutatedTexts)
{
    using namespace std::string_view_literals;
    static constexpr std::string_view theBytes = "()()\"\"\\; \n\r\t\0\x01\x7F"
                                                 "a1.+-e\xEF$"sv;
    std::mt19937 random(20);
    auto const below = [&random](std::size_t limit) { return random() % std::max<std::size_t>(limit, 1); };
    for (auto const& [file, example] : exampleTexts())
    {
        for (int round = 0; round < 20; ++round)
        {
            std::string text = example.substr(below(example.size()), 40 + below(400));
            for (std::size_t changes = below(4); changes-- != 0;)
            {
                text.replace(below(text.size()), below(3), below(3), theBytes[below(theBytes.size())]);
            }
            expectAgreement(text);
        }
    }
}

TEST(TextTree, GoesOnBehindFaults)
{
    TextTree const tree("(a \x01 (b 1)\x02\x03 (c \"x\")) ) (d");
    std::string faults;
    for (AxlSyntaxError const& fault : tree.faults())
    {
        faults += std::string(fault.code()) + at(fault.line(), fault.column());
    }
    EXPECT_EQ(faults, "control-byte 1:4\ncontrol-byte 1:11\nstray-parenthesis 1:23\nunclosed-list 1:25\n");
    EXPECT_EQ(tree.root().find("c").firstValue().value(), "x");
    EXPECT_EQ(tree.root().source(), "(a \x01 (b 1)\x02\x03 (c \"x\"))");
    EXPECT_FALSE(tree.root().next().isClosed());
}

TEST(TextTree, FindsItemsByKeywordAndByPlace)
{
    TextTree const tree("; head\n(a (b 1)\n  (\"c d\" 2) ; tail\n  (b 3))\n");
    EXPECT_EQ(tree.root().find("b").source(), "(b 3)");
    EXPECT_EQ(tree.root().find("c d").firstValue().value(), "2");
    EXPECT_FALSE(tree.root().find("a"));
    struct
    {
        TextTree::Place place;
        std::string_view source;
    } const cases[] = {{{1, 3}, ""},      {{2, 2}, "a"},       {{2, 5}, "b"},     {{2, 4}, "(b 1)"},
                       {{2, 8}, "(b 1)"}, {{3, 5}, "\"c d\""}, {{3, 1}, "(a (b"}, {{3, 16}, "(a (b"},
                       {{4, 7}, "(b 3)"}, {{4, 8}, "(a (b"},   {{5, 1}, ""},      {{9, 9}, ""}};
    for (auto const& expected : cases)
    {
        std::string_view const source = tree.itemAt(tree.offset(expected.place)).source();
        EXPECT_EQ(source.substr(0, 5), expected.source.substr(0, 5)) << expected.place.line << expected.place.column;
    }
}

TEST(TextTree, TakesLargeTextsOfAnyPiece)
{
    for (std::string const piece : {"(a 1 \"x\")\n", "((((", ") ) ", ";\n", "\x01 ", "\"\n\\\""})
    {
        std::string text;
        for (std::size_t i = 0; i < 200000; ++i)
        {
            text += piece;
        }
        std::size_t const size = text.size();
        std::size_t told = 0;
        TextTree const tree(std::move(text));
        for (TextTree::Token const& token : tree.tokens())
        {
            told += tree.textOf(token).size();
        }
        EXPECT_EQ(told, size) << piece;
    }
}
