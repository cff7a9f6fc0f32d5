#include "AxlPrint.h"

#include <random>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include "AxSinkScope.h"
#include "AxStreams.h"
#include "platform/sxp/Cells.h"

namespace
{
bool equal(AxlObj const* a, AxlObj const* b)
{
    for (; a->isPair() && b->isPair(); a = a->cdr(), b = b->cdr())
    {
        if (!equal(a->car(), b->car()))
        {
            return false;
        }
    }
    return AxcEq(AxlObjPtr(a), AxlObjPtr(b)) && a->pname() == b->pname();
}

/// Expressions of every kind of cell, spelled in every way.
class Expressions
{
public:
    explicit Expressions(unsigned seed) : myEngine(seed) {}

    std::string list(int depth)
    {
        std::string text = "(";
        for (int count = pick(6); count != 0; --count)
        {
            static constexpr char const* theSeparators[] = {" ", "\n  ", "\r\n", " ; note\n", "\t"};
            text += depth > 0 && pick(3) == 0 ? list(depth - 1) : atom();
            text += theSeparators[pick(5)];
        }
        return text + ")";
    }

private:
    int pick(int count) { return static_cast<int>(myEngine() % static_cast<unsigned>(count)); }

    std::string some(std::string_view bytes, int count)
    {
        std::string text;
        for (; count > 0; --count)
        {
            text += bytes[static_cast<std::size_t>(pick(static_cast<int>(bytes.size())))];
        }
        return text;
    }

    std::string atom()
    {
        switch (pick(3))
        {
        case 0:
            return some("0123456789+-.e", 1 + pick(12));
        case 1:
            return some("abz$!'|\\,:-_/\xC3\xA4", 1 + pick(20));
        default:
            return "\"" + some("ab $(;)\n\r\t\x01", pick(40)) + (pick(2) != 0 ? "\\\"" : "\\n") + "\"";
        }
    }

    std::mt19937 myEngine;
};
} // namespace

TEST(AxlPrint, ReadsBackEqual)
{
    AxSinkScope numbersBeyondRange(AxWarn);
    for (unsigned seed = 0; seed < 2000; ++seed)
    {
        std::string const text = Expressions(seed).list(4);
        AxlObjPtr first = cellsOf(text);
        std::string const once = printed(first);
        AxlObjPtr second = cellsOf(once);
        ASSERT_TRUE(equal(first.get(), second.get())) << text << "\n" << once;
        ASSERT_EQ(printed(second), once);
    }
}

TEST(AxlPrint, KeepsTheSpellingOfNumbers)
{
    std::string const text = "(007 +5 1.50 1e3 5. .5 -0 -0.0 100000000000000000000 0.00001 123456789.123456789 0.10)";
    EXPECT_EQ(printed(cellsOf(text)), text);
}

TEST(AxlPrint, QuotesSymbolsThatWouldReadAsSomethingElse)
{
    for (char const* text : {"", "12", "a b", "(", "a;b", "say \"x\""})
    {
        AxlObjPtr again = cellsOf(printed(AxcSymbol(text)));
        EXPECT_EQ(again->tag(), AxlObj::Tag::String) << text;
        EXPECT_EQ(again->text(), text);
    }
    EXPECT_EQ(printed(AxcSymbol("$speed")), "$speed");
}

TEST(AxlPrint, WritesNamesBareOnlyWhenTheyAreBareWords)
{
    for (auto const& [name, text] :
         {std::pair{"main-gun", "main-gun"}, {"$gun", "\"$gun\""}, {"12", "\"12\""}, {"", "\"\""}})
    {
        std::string out;
        axAppendName(out, AxSymbolString(name));
        EXPECT_EQ(out, text);
    }
}

TEST(AxlPrint, WritesATailThatIsNoListAsLastElement)
{
    EXPECT_EQ(printed(AxcCons(AxcSymbol("a"), AxcSymbol("b"))), "(a b)");
    EXPECT_EQ(printed(AxcCons({}, {})), "(())");
}
