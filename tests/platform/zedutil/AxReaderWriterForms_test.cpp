#include "AxRwVariableBindings.h"
#include "AxlFunctions.h"
#include "Machine.h"
#include "platform/zedutil/Reading.h"

#include <iterator>
#include <random>

#include <gtest/gtest.h>

using machine::Machine;

// Items as files may have them, right ones and wrong ones, alone and beside others: whatever becomes of them in one
// notation has to become of them in the other.
namespace
{
constexpr char const* theItems[] = {"(mass 5)",
                                    "(mass $heavy)",
                                    "(mass ($heavy 5.0))",
                                    "(mass)",
                                    "(mass heavy)",
                                    "(mass 5 6)",
                                    "(mass \"5\")",
                                    "(mass +inf)",
                                    "(mass -nan)",
                                    "(mass 1e400)",
                                    "(seats 4)",
                                    "(seats 2.5)",
                                    "(seats -99999999999)",
                                    "(seats $n)",
                                    "(armed true)",
                                    "(armed maybe)",
                                    "(armed 1)",
                                    "(armed 2)",
                                    "(armed ON)",
                                    "(label \"a \\\"b\\\" <&> \\\\\")",
                                    "(label x)",
                                    "(label \"a\" \"b\")",
                                    "(label \"$(dir)/x\")",
                                    "(label \"$$(dir)\")",
                                    "(label 5)",
                                    "(label)",
                                    "(label \"\")",
                                    "(label $dir)",
                                    "(paint 4294967295)",
                                    "(paint -1)",
                                    "(id \"01234567-89ab-cdef-0123-456789abcdef\")",
                                    "(id \"zz\")",
                                    "(id 5)",
                                    "(id \"\")",
                                    "(file \"dir\\a.ope\")",
                                    "(file \"$(dir).ope\")",
                                    "(file $dir)",
                                    "(file)",
                                    "(kind 1 1 1 225 1 1 3 0)",
                                    "(kind 1:1:1:225:1:1:3:0)",
                                    "(kind \"1 1 1 225 1 1 3 0\")",
                                    "(kind 1 2)",
                                    "(kind $k)",
                                    "(kind)",
                                    "(entity 1 1 225 -1 -1 -1 -1)",
                                    "(entity 1 2 3 4 5 6 7 8)",
                                    "(place 1 -2.5 1e+20)",
                                    "(place 1 2)",
                                    "(place 1 2 3 4)",
                                    "(place $here)",
                                    "(place ($here 1 2 3))",
                                    "(place 1 $heavy 3)",
                                    "(place (1 2 3))",
                                    "(offset 0 0 1)",
                                    "(angles 0.5 0 0)",
                                    "(angles a b c)",
                                    "(tags \"Tank\" \"Main battle\" \"5\" \"$x\" \"\")",
                                    "(tags)",
                                    "(tags a 5 \"$(dir)\")",
                                    "(tags ($t \"x\"))",
                                    "(tags (a))",
                                    "(curve 1 2.5 inf)",
                                    "(curve 1 x)",
                                    "(curve)",
                                    "(forces 1 3)",
                                    "(forces 1 -1)",
                                    "(forces)",
                                    "(targets (1 1 1 225 -1 -1 -1 -1) (3 1 1 222 0 0 0 0))",
                                    "(targets)",
                                    "(targets 1 1 1 225 1 1 3 0)",
                                    "(targets (1 2))",
                                    "(notes (\"a b\" \"$5\") (\"c\" \"7\"))",
                                    "(notes (a))",
                                    "(notes (a b c))",
                                    "(notes (\"\" \"\"))",
                                    "(notes)",
                                    "(grip (\"mud\" 0.4))",
                                    "(grip (a b))",
                                    "(grip 5)",
                                    "(box (min 0 0 0) (max 1 2 3))",
                                    "(box (min 0 0 0))",
                                    "(box (max 1 2))",
                                    "(box 1)",
                                    "(engine (power 7) (label \"007\") (type \"V 12\"))",
                                    "(engine)",
                                    "(engine 5)",
                                    "(engine (power) (foo))",
                                    "(engine (type x) (name y))",
                                    "(engine (power $heavy) stray)",
                                    "(engine $part)",
                                    "(engine ($part (power 1)))",
                                    "(engine (place 1 2))",
                                    "(spares (left (place 1 2 3)) (\"a b\" (power inf)) (left))",
                                    "(spares)",
                                    "(spares 5)",
                                    "(spares (\"\"))",
                                    "(spares (5 (power 1)))",
                                    "(spares ((x)))",
                                    "(spares (a (foo 1) (power 2) 3))",
                                    "(spares $s)",
                                    "(properties (p AxRwReal 5) (q AxRwVector 1 2 3) (s AxRwString \"x y\"))",
                                    "(properties (p AxRwReal))",
                                    "(properties (p NoType 5))",
                                    "(properties (p AxRwReal $heavy))",
                                    "(properties (p))",
                                    "(properties 5)",
                                    "(properties (p AxRwString \"a\") (p AxRwString \"b\"))",
                                    "(properties (t AxRwObjectType 1 2))",
                                    "(many (AxRwReal 5) (AxRwString \"five\") (AxRwVector 1 2 3))",
                                    "(many (AxRwReal))",
                                    "(many 5)",
                                    "(many (NoSuch (a b)))",
                                    "(many (AxRwString $dir))",
                                    "(many ($x))",
                                    "(many (AxRwReal 5 6))",
                                    "(machine-type \"5\")",
                                    "(machine-type x)",
                                    "(unknown)",
                                    "(unknown 5)",
                                    "(unknown \"a\" b)",
                                    "(unknown (a (b \"c\")))",
                                    "(Unknown-2.x \"$(dir)\")",
                                    "(unknown $dir)",
                                    "(xml-thing 1)",
                                    "(name \"own\")",
                                    "(name 5)",
                                    "(type 1)",
                                    "(value 2)",
                                    "(variable 3)",
                                    "(\"a b\" 4)",
                                    "(5 6)",
                                    "(\"\" 7)",
                                    "(())",
                                    "()",
                                    "(properties ())",
                                    "stray",
                                    "5",
                                    "\"text\"",
                                    "$ref",
                                    "($ref 1)",
                                    "(sexp 5)",
                                    "(sexp \"<a/>\")"};

AxRwVariableBindings variables()
{
    AxRwVariableBindings set("variables", nullptr);
    set.set(AxSymbolString("heavy"), AxcCons(AxcNumber(9.0), axcNil()));
    set.setString(AxSymbolString("dir"), "d");
    return set;
}

void expectXmlHolds(std::string const& text, AxBindingsList const& sets)
{
    ReportedFindings quiet;
    Machine machine;
    ASSERT_TRUE(readFrom(machine, text, sets)) << text;
    AxString const xml = machine.toXml();
    ASSERT_FALSE(xml.isNull()) << text;
    Machine back;
    ASSERT_TRUE(back.fromXml(xml)) << xml.string();
    EXPECT_EQ(back.writtenText(), machine.writtenText()) << text << '\n' << xml.string();
    EXPECT_EQ(back.toXml(), xml) << text;
    EXPECT_EQ(back.hasVariableReference(), machine.hasVariableReference()) << text;
}
} // namespace

TEST(AxReaderWriterForms, XmlHoldsEveryItemThatATextMayHave)
{
    AxRwVariableBindings const set = variables();
    std::mt19937 engine(5);
    auto const any = [&] { return theItems[engine() % std::size(theItems)] + std::string(" "); };
    for (char const* item : theItems)
    {
        expectXmlHolds("(m " + std::string(item) + ")", {});
        expectXmlHolds("(m (mass 1) " + std::string(item) + " (engine (power 1)))", {&set});
    }
    for (int round = 0; round < 600; ++round)
    {
        expectXmlHolds("(m " + any() + any() + any() + any() + ")", {&set});
    }
}

TEST(AxReaderWriterForms, CopiesHoldEveryItemThatATextMayHave)
{
    AxRwVariableBindings const set = variables();
    for (char const* item : theItems)
    {
        ReportedFindings quiet;
        Machine machine;
        readFrom(machine, "(m " + std::string(item) + ")", {&set});
        Machine other(AxSymbolString("m"));
        readFrom(other, machine::theWholeText, {&set});
        static_cast<AxReaderWriter&>(other) = machine;
        other.itsType = machine.itsType;
        EXPECT_TRUE(other == machine) << item;
        EXPECT_EQ(other.writtenText(), machine.writtenText()) << item;
    }
}

namespace
{
/// Keywords as hosts may choose them.
class Host : public AxReaderWriter
{
public:
    explicit Host(AxSymbolString name = {}) : AxReaderWriter(name, nullptr)
    {
        for (char const* keyword : {"Mass", "_x", "x.y-Z9", "9lives", "a:b", "a b", "xmlns", "value", "type",
                                    "variable", "name", "bindings", "sexp", "\xC3\xA4", "-", "$x", "("})
        {
            members.push_back(std::make_unique<AxRwReal>(AxSymbolString(keyword), registry()));
        }
    }

    std::vector<std::unique_ptr<AxRwReal>> members;
};
} // namespace

TEST(AxReaderWriterForms, BothHoldMembersOfAnyKeyword)
{
    Host const names;
    for (std::size_t i = 0; i < names.members.size(); ++i)
    {
        ReportedFindings findings;
        Host host(AxSymbolString("m"));
        *host.members[i] = 7.0;
        host.members[i]->setValueSpecified(true, false);
        SCOPED_TRACE(host.writtenText() + host.toXml().string());
        Host fromText;
        ASSERT_TRUE(readFrom(fromText, host.writtenText()));
        EXPECT_EQ(fromText.members[i]->value(), 7.0);
        Host fromXml;
        ASSERT_TRUE(fromXml.fromXml(host.toXml()));
        EXPECT_EQ(fromXml.members[i]->value(), 7.0);
        EXPECT_EQ(fromXml.writtenText(), host.writtenText());
        EXPECT_EQ(findings.codes(), "");
    }
}
