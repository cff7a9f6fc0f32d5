#include "AxlFunctions.h"

#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "AxNumberText.h"
#include "AxSinkScope.h"
#include "AxStreams.h"
#include "AxlSyntaxError.h"
#include "Decimals.h"
#include "platform/sxp/Cells.h"

namespace
{
/// "line:column code text" of the error that reading ends in; "" when it does not.
std::string errorOf(std::string const& text)
{
    try
    {
        cellsOf(text);
    }
    catch (AxlSyntaxError const& error)
    {
        return std::to_string(error.line()) + ":" + std::to_string(error.column()) + " " + error.code() + " " +
               error.text();
    }
    return "";
}

std::string placeOf(AxlObj const* cell)
{
    return std::to_string(cell->line()) + ":" + std::to_string(cell->column());
}
} // namespace

TEST(AxcRead, TellsNumbersFromSymbols)
{
    struct Case
    {
        char const* text;
        double value;
        bool integer;
    };
    for (Case const& one : {Case{"5", 5, true},
                            {"+5", 5, true},
                            {"-5", -5, true},
                            {"007", 7, true},
                            {"5.", 5, false},
                            {".5", 0.5, false},
                            {"-.5", -0.5, false},
                            {"1.25", 1.25, false},
                            {"1e3", 1000, false},
                            {"1.5e-3", 0.0015, false},
                            {"-2.5e+2", -250, false},
                            {"123456789012345", 123456789012345.0, true},
                            {"12345678901234567890", 12345678901234567890.0, true},
                            {"0.1234567890123456789", 0.1234567890123456789, false},
                            {"0.000000000000001", 1e-15, false},
                            {"1.7976931348623157e308", 1.7976931348623157e308, false}})
    {
        AxlObjPtr cell = cellsOf(one.text);
        ASSERT_EQ(cell->tag(), AxlObj::Tag::Number) << one.text;
        EXPECT_EQ(cell->flonum(), one.value) << one.text;
        EXPECT_EQ(cell->isInteger(), one.integer) << one.text;
        EXPECT_EQ(cell->pname(), one.text);
    }
    for (char const* text :
         {"120mm-heat", "1:2:225", "inf", "nan", "0x10", "5-ton", "+",  "-",   ".",        "...", "-a",  "1.2.3",
          "1e",         "1e+",     "e5",  "1E",  "'a",   "|a|",   "#t", "a.b", "\xC3\xA4", "\\",  "a!b", "!!!!!!!!!!!"})
    {
        AxlObjPtr cell = cellsOf(text);
        ASSERT_EQ(cell->tag(), AxlObj::Tag::Symbol) << text;
        EXPECT_EQ(cell->pname(), text);
        EXPECT_EQ(cell->flonum(), 0.0);
    }
}

TEST(AxcRead, ReadsEveryDecimalToTheNearestDouble)
{
    std::mt19937 engine(3);
    for (int round = 0; round < 20000; ++round)
    {
        std::string const text = anyDecimal(engine);
        double slowly = 0.0;
        ASSERT_TRUE(axParseReal(text, slowly));
        AxlObjPtr cell = cellsOf(text);
        ASSERT_EQ(cell->flonum(), slowly) << text;
        ASSERT_EQ(cell->pname(), text);
    }
}

TEST(AxcRead, KeepsANumberBeyondRangeAsSymbol)
{
    AxlObjPtr cell = cellsOf("(mass\n 1e999)");
    EXPECT_EQ(AxcCadr(cell)->tag(), AxlObj::Tag::Symbol);
    EXPECT_EQ(printed(cell), "(mass 1e999)");
}

TEST(AxcRead, ReadsStringsByteForByte)
{
    using namespace std::string_literals;
    struct Case
    {
        std::string written;
        std::string text;
    };
    for (Case const& one :
         std::vector<Case>{{R"("")", ""},
                           {R"("a")", "a"},
                           {R"("exactly sixteen!")", "exactly sixteen!"},
                           {R"("a text that is longer than a cell")", "a text that is longer than a cell"},
                           {R"("a \"b\" c")", R"(a "b" c)"},
                           {R"(".\\damage\\m1.dmg")", R"(.\damage\m1.dmg)"},
                           {R"(".\damage\m1.dmg")", R"(.\damage\m1.dmg)"},
                           {R"("\n\\")", R"(\n\)"},
                           {"\"a\r\nb;c(\"", "a\r\nb;c("},
                           {"\"\0\x01\xFF\""s, "\0\x01\xFF"s}})
    {
        AxlObjPtr cell = cellsOf(one.written);
        ASSERT_EQ(cell->tag(), AxlObj::Tag::String) << one.written;
        EXPECT_EQ(cell->text(), one.text);
        EXPECT_EQ(cell->string(), one.text);
        EXPECT_EQ(cellsOf(printed(cell))->text(), one.text);
    }
}

TEST(AxcRead, SkipsBlanksAndComments)
{
    EXPECT_EQ(printed(cellsOf("; c\r\n\t\f\v (a;(x\n b \r c);)")), "(a b c)");
    EXPECT_EQ(printed(cellsOf("(a\"s\"5\"t\"(b)c)")), "(a \"s\" 5 \"t\" (b) c)");
    EXPECT_EQ(printed(cellsOf("\xEF\xBB\xBF(a)")), "(a)");
    EXPECT_EQ(printed(cellsOf("(a () ( ) (()))")), "(a () () (()))");
}

TEST(AxcRead, AnswersTheOneEndOfFileCell)
{
    for (char const* text : {"", "  \n", "; nothing", "; nothing\n", "\xEF\xBB\xBF"})
    {
        EXPECT_EQ(cellsOf(text).get(), AxlObj::eofCell()) << text;
    }
}

TEST(AxcRead, GivesEveryCellItsPlace)
{
    AxlObjPtr cell = cellsOf("; x\n(a \"b\nc\" 12\n\t(d\n ()))");
    EXPECT_EQ(placeOf(cell.get()), "2:1");
    EXPECT_EQ(placeOf(cell->car()), "2:2");
    EXPECT_EQ(placeOf(AxcCadr(cell).get()), "2:4");
    EXPECT_EQ(placeOf(AxcCaddr(cell).get()), "3:4");
    AxlObj const* list = cell->cdr()->cdr()->cdr()->car();
    EXPECT_EQ(placeOf(list), "4:2");
    EXPECT_EQ(placeOf(list->cdr()), "5:2");
    EXPECT_EQ(placeOf(list->cdr()->car()), "5:2");
    EXPECT_TRUE(list->cdr()->car()->nil());
}

TEST(AxcRead, MarksReferences)
{
    EXPECT_TRUE(cellsOf("$v")->isReference());
    EXPECT_FALSE(cellsOf("$")->isReference());
    EXPECT_FALSE(cellsOf("a$")->isReference());
    EXPECT_FALSE(cellsOf("\"$v\"")->isReference());
    EXPECT_TRUE(cellsOf("\"data/$(dir)/x\"")->hasEmbeddedReference());
    EXPECT_TRUE(cellsOf("\"a long text with a $(reference) in it\"")->hasEmbeddedReference());
    EXPECT_FALSE(cellsOf("\"$ (\"")->hasEmbeddedReference());
}

TEST(AxcRead, NamesThePlaceOfEverySyntaxError)
{
    EXPECT_EQ(errorOf("(a\n  (b c"),
              "2:3 unclosed-list the list is not closed, expected \")\" before the end of the text");
    EXPECT_EQ(errorOf("(a)\n)"), "");
    EXPECT_EQ(errorOf(" )"),
              "1:2 stray-parenthesis expected \"(\" or the end of the text, found \")\", which closes no list");
    for (char const* openString : {"(a \"b\n)\n", "(a \"b\\\"", "(a \"b\\"})
    {
        EXPECT_EQ(errorOf(openString),
                  "1:4 unclosed-string the string is not closed, expected '\"' before the end of the text");
    }
    EXPECT_EQ(errorOf("(a\x01)"), "1:3 control-byte expected text, found the control byte 0x01 outside of a string");
    EXPECT_EQ(errorOf(std::string("(a ") + '\0' + ")"),
              "1:4 control-byte expected text, found the control byte 0x00 outside of a string");
    for (char const* mark : {"\xFF\xFE", "\xFE\xFF"})
    {
        EXPECT_EQ(errorOf(mark + std::string("(\0a\0", 4)), "1:1 utf-16 expected text in UTF-8, found UTF-16");
    }
    EXPECT_EQ(errorOf("abcdefghijk\x7F"), "");
    EXPECT_EQ(errorOf("(abcdefghijk\x7F)"),
              "1:13 control-byte expected text, found the control byte 0x7f outside of a string");
}

TEST(AxcRead, RefusesListsNestedTooDeep)
{
    std::string const deepest = std::string(1000, '(') + std::string(1000, ')');
    EXPECT_EQ(printed(cellsOf(deepest)), deepest);
    EXPECT_EQ(errorOf(std::string(100000, '(') + std::string(100000, ')')),
              "1:1001 nesting-limit lists are nested deeper than 1000");
}

TEST(AxcRead, RefusesTokensAboveTheLimit)
{
    std::size_t const tooLong = (std::size_t(16) << 20) + 1;
    EXPECT_TRUE(errorOf("(" + std::string(tooLong, 'a') + ")").starts_with("1:2 token-limit"));
    EXPECT_TRUE(errorOf("(" + std::string(tooLong, '1') + ")").starts_with("1:2 token-limit"));
    EXPECT_TRUE(errorOf("(\"" + std::string(tooLong, 'a') + "\")").starts_with("1:2 token-limit"));
}

TEST(AxcRead, ClosesOpenListsWhenAsked)
{
    AxlInputStream stream("(a\n (b c) (d");
    AxlReadResult result = AxcRead(stream, {}, {.closeOpenLists = true});
    EXPECT_EQ(printed(result.expr), "(a (b c) (d))");
    EXPECT_TRUE(result.unclosed);
    EXPECT_EQ(result.line, 2U);
    EXPECT_EQ(result.column, 8U);

    AxlInputStream whole("(a)");
    EXPECT_FALSE(AxcRead(whole, {}, {.closeOpenLists = true}).unclosed);
}

TEST(AxcRead, LeavesTheStreamBehindTheExpression)
{
    AxlInputStream stream("(a) ; c\n  (b)x");
    std::uint32_t line = 0;
    std::uint32_t column = 0;
    EXPECT_EQ(printed(AxcRead(stream)), "(a)");
    EXPECT_TRUE(axTextFollows(stream, line, column));
    EXPECT_EQ(line, 2U);
    EXPECT_EQ(column, 3U);
    EXPECT_EQ(stream.peekc(), '(');
    EXPECT_EQ(printed(AxcRead(stream)), "(b)");
    EXPECT_EQ(stream.fgetc(), 'x');
    EXPECT_FALSE(axTextFollows(stream, line, column));
}
