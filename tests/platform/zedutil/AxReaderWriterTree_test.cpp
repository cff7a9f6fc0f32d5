#include "Machine.h"

#include "AxDiagnostic.h"
#include "AxEnvXMLReader.h"
#include "AxRwVariableBindings.h"
#include "AxSinkScope.h"
#include "platform/zedutil/Reading.h"

#include <boost/filesystem/operations.hpp>
#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

using machine::Machine;
using machine::Part;
using machine::theWholeText;

namespace
{
/// The element without the declaration in front of it.
std::string xmlOf(AxReaderWriter const& rw)
{
    std::string const xml = rw.toXml().string();
    return xml.substr(xml.find('\n') + 1);
}

AxEnvironmentPtr treeOf(std::string_view xml)
{
    return AxEnvXMLReader::readText(xml, AxFilename("test.xml"));
}
} // namespace

TEST(AxReaderWriterTree, EveryKindComesBackEqualAndWritesTheSameText)
{
    Machine written;
    ASSERT_TRUE(readFrom(written, theWholeText));
    ASSERT_TRUE(written.keptItems().empty());
    ReportedFindings findings;
    Machine back;
    ASSERT_TRUE(back.fromXml(written.toXml())) << written.toXml().string();
    EXPECT_EQ(findings.codes(), "") << written.toXml().string();
    EXPECT_EQ(back.writtenText(), written.writtenText());
    EXPECT_EQ(back.itsType, "x");
    EXPECT_TRUE(back == written);
    EXPECT_EQ(back.toXml(), written.toXml());
}

TEST(AxReaderWriterTree, EachKindHasItsShape)
{
    struct Case
    {
        char const* item;
        char const* xml;
    };
    Case const cases[] = {
        {"(mass 5)", "<machine name=\"m\" mass=\"5.0\"/>\n"},
        {"(armed yes)", "<machine name=\"m\" armed=\"true\"/>\n"},
        {"(label \"a b\")", "<machine name=\"m\" label=\"a b\"/>\n"},
        {"(file \"a.ope\")", "<machine name=\"m\" file=\"a.ope\"/>\n"},
        {"(machine-type \"x\")", "<machine name=\"m\" machine-type=\"x\"/>\n"},
        {"(name \"x\")", "<machine name=\"m\">\n  <AxRwString name=\"name\" value=\"&quot;x&quot;\"/>\n</machine>\n"},
        {"(kind 1 1 1 225 1 1 -1 -1)",
         "<machine name=\"m\">\n  <objectType name=\"kind\" value=\"1:1:1:225:1:1:-1:-1\"/>\n</machine>\n"},
        {"(place 1 2 3)", "<machine name=\"m\">\n  <vector name=\"place\" value=\"1.0 2.0 3.0\"/>\n</machine>\n"},
        {"(tags \"Tank\" \"Main battle\")",
         "<machine name=\"m\">\n  <strings name=\"tags\" value=\"Tank &quot;Main battle&quot;\"/>\n</machine>\n"},
        {"(targets (1 1 1 225 1 1 3 0))",
         "<machine name=\"m\">\n  <objectTypes name=\"targets\">\n    <objectType value=\"1:1:1:225:1:1:3:0\"/>\n"
         "  </objectTypes>\n</machine>\n"},
        {"(notes (\"a\" \"b\"))",
         "<machine name=\"m\">\n  <attributes name=\"notes\">\n    <attribute name=\"a\" value=\"b\"/>\n"
         "  </attributes>\n</machine>\n"},
        {"(engine (power 7))", "<machine name=\"m\">\n  <part name=\"engine\" power=\"7.0\"/>\n</machine>\n"},
        {"(spares (left (power 7)))",
         "<machine name=\"m\">\n  <parts name=\"spares\">\n    <part name=\"left\" power=\"7.0\"/>\n  </parts>\n"
         "</machine>\n"},
        {"(many (AxRwReal 5))", "<machine name=\"m\">\n  <list name=\"many\">\n    <readerWriter value=\"5.0\" "
                                "type=\"AxRwReal\"/>\n  </list>\n"
                                "</machine>\n"},
        {"(properties (p AxRwReal 5))",
         "<machine name=\"m\">\n  <properties name=\"properties\">\n"
         "    <property name=\"p\" type=\"AxRwReal\" value=\"5.0\"/>\n  </properties>\n</machine>\n"},
    };
    for (Case const& c : cases)
    {
        Machine machine;
        ASSERT_TRUE(readFrom(machine, std::string("(m ") + c.item + ')')) << c.item;
        EXPECT_EQ(xmlOf(machine), c.xml);
    }
}

TEST(AxReaderWriterTree, ReadsAttributesAndChildrenInAnyOrder)
{
    Machine machine;
    ReportedFindings findings;
    ASSERT_TRUE(machine.fromXml("<m name='m'><vector value='1 2 3' name='place'/><objectType name='kind' value=' '/>"
                                "<engine label='5' power=' 7 '/><parts name='spares'><part power='1' name='a'/></parts>"
                                "</m>"));
    EXPECT_EQ(findings.codes(), "");
    EXPECT_EQ(machine.writtenText(), "(m\n  (place 1.0 2.0 3.0)\n  (engine\n    (power 7.0)\n    (label \"5\"))\n"
                                     "  (spares\n    (a\n      (power 1.0))))\n");
    EXPECT_FALSE(machine.kind.valueSpecified());
}

TEST(AxReaderWriterTree, ReferencesKeepTheirFormAndTakeTheirValues)
{
    struct Case
    {
        char const* item;
        char const* xml;
    };
    Case const cases[] = {
        {"(mass $heavy)", "mass=\"$heavy\""},
        {"(label \"$5\")", "label=\"$$5\""},
        {"(label \"a/$(dir)/b\")", "label=\"a/$(dir)/b\""},
        {"(label \"$(dir)\")", "label=\"$(dir)\""},
        {"(label \"cost $$(x)\")", "label=\"cost $$(x)\""},
        {"(label \"$\")", "label=\"$$\""},
        {"(label \"$$a\")", "label=\"$$$a\""},
        {"(label $dir)", "label=\"$dir\""},
        {"(mass ($heavy 5.0))", "<sexp name=\"mass\">(mass ($heavy 5.0))</sexp>"},
        {"(place $here)", "<vector name=\"place\" variable=\"$here\"/>"},
        {"(place ($here 1 2 3))", "variable=\"($here 1 2 3)\""},
        {"(tags \"a\" \"$(dir)\")", "value=\"&quot;a&quot; &quot;$(dir)&quot;\""},
        {"(spares (a (power $heavy)))", "<part name=\"a\" power=\"$heavy\"/>"},
    };
    AxRwVariableBindings bindings;
    bindings.set("heavy", AxcCons(AxcNumber(9.0), axcNil()));
    bindings.setString("dir", "d");
    for (Case const& c : cases)
    {
        Machine machine;
        readFrom(machine, std::string("(m ") + c.item + ')');
        std::string const xml = machine.toXml().string();
        EXPECT_NE(xml.find(c.xml), std::string::npos) << c.item << '\n' << xml;
        Machine back;
        ASSERT_TRUE(back.fromXml(AxString(xml)));
        EXPECT_EQ(back.writtenText(), machine.writtenText()) << xml;
        EXPECT_EQ(back.hasVariableReference(), machine.hasVariableReference()) << xml;
        AxEnvironmentPtr const env = treeOf(xml);
        Machine bound;
        bound.getSelf(env, env->root(), AxReaderWriter::nullFilenames(), {&bindings});
        EXPECT_EQ(bound.writtenText(), machine.writtenText()) << xml;
        Machine fromText;
        readFrom(fromText, std::string("(m ") + c.item + ')', {&bindings});
        EXPECT_EQ(bound.mass.value(), fromText.mass.value());
        EXPECT_EQ(bound.label.value(), fromText.label.value());
    }
}

TEST(AxReaderWriterTree, KeptItemsComeBackInTheirPlaces)
{
    char const* const texts[] = {
        "(m (foo 5))",
        "(m (foo (bar \"x\") y) (mass 1))",
        "(m (mass 1) (foo 5) (seats 2))",
        "(m (mass 1) (foo 5) (bar 6) (seats 2) (place 1 2 3) (more) (tags \"a\"))",
        "(m (place 1 2 3) (mass heavy) (foo 5) (seats 2))",
        "(m (engine (power 1) (foo 5) (label \"a\")) stray)",
        "(m (machine-type \"5\") (foo 5))",
        "(m (machine-type \"5\") (mass 1) (foo 5) (seats 1) (name \"x\") (bar 6))",
        "(m (machine-type \"5\") (foo 5) (mass 1) (spares (a (foo 5)) (b)))",
        "(m (many (AxRwReal 5) (NoSuchType 7 (a \"b\")) (AxRwReal 6)))",
        "(m (mass 1) \xEF\xBB\xBFstray (seats 2))", // no byte-order mark: it begins a word, not a file
    };
    for (char const* const text : texts)
    {
        ReportedFindings findings;
        Machine machine;
        ASSERT_TRUE(readFrom(machine, text));
        Machine back;
        ASSERT_TRUE(back.fromXml(machine.toXml()));
        EXPECT_EQ(back.writtenText(), machine.writtenText()) << machine.toXml().string();
        EXPECT_EQ(back.toXml(), machine.toXml());
    }
    ReportedFindings findings;
    Machine machine;
    readFrom(machine, "(m (mass 1) (foo 5))");
    EXPECT_EQ(xmlOf(machine), "<machine name=\"m\" mass=\"1.0\">\n  <sexp name=\"foo\">(foo 5)</sexp>\n</machine>\n");

    readFrom(machine, "(m (mass 2) \xFF\xFEstray (seats 3))");
    Machine back;
    EXPECT_TRUE(back.fromXml(machine.toXml()));
    EXPECT_EQ(back.seats.value(), 3);
    EXPECT_NE(findings.codes().find("not-utf8"), std::string::npos);
}

TEST(AxReaderWriterTree, UnknownXmlIsKeptReportedAndWrittenAsXmlAgain)
{
    std::string const xml = "<machine name=\"m\" mass=\"1.0\" foo=\"5\">\n"
                            "  <!-- a &quot; \"note\" -->\n"
                            "  <vector name=\"place\" value=\"1.0 2.0 3.0\"/>\n"
                            "  <future name=\"bar\" a=\"1\">\n    <inner/>\n  </future>\n"
                            "  <nameless/>\n"
                            "  <part name=\"engine\" power=\"7.0\">\n    <mystery name=\"x\" y=\"z\"/>\n  </part>\n"
                            "</machine>\n";
    ReportedFindings findings;
    Machine machine;
    ASSERT_TRUE(machine.fromXml(AxString(xml)));
    EXPECT_EQ(findings.codes(), "unknown-keyword@1:30 unknown-keyword@4:3 unknown-keyword@9:5 unknown-element@7:3");
    EXPECT_EQ(xmlOf(machine), xml);
    std::string const text = machine.writtenText();
    EXPECT_NE(text.find("  (xml-item \"foo=\\\"5\\\"\")\n"), std::string::npos) << text;
    EXPECT_NE(text.find("  (xml-item \"<nameless/>\")\n"), std::string::npos) << text;
    Machine fromText;
    findings.all.clear();
    ASSERT_TRUE(readFrom(fromText, text));
    EXPECT_EQ(findings.codes(), "");
    EXPECT_EQ(xmlOf(fromText), xml);
    EXPECT_EQ(fromText.writtenText(), text);
}

TEST(AxReaderWriterTree, FaultsAreReportedAtTheirLinesAndNeighboursAreRead)
{
    struct Case
    {
        char const* xml;
        char const* codes;
        double mass;
    };
    Case const cases[] = {
        {"<m name='m'\n mass='heavy' seats='2'/>", "wrong-kind@2:2", 5000.0},
        {"<m name='m' mass='7'>\n<vector name='place' value='1 2'/></m>", "wrong-kind@2:1", 7.0},
        {"<m name='m' mass='7'>\n<vector name='place' value='1 (2'/></m>", "wrong-kind@2:1", 7.0},
        {"<m name='m' mass='7'>\n<vector name='place'/></m>", "wrong-kind@2:1", 7.0},
        {"<m name='m' mass='7'>\n<sexp name='x'>(x</sexp></m>", "not-an-item@2:1", 7.0},
        {"<m name='m' mass='7' mas='8'/>", "unknown-keyword@1:22", 7.0},
    };
    for (Case const& c : cases)
    {
        ReportedFindings findings;
        Machine machine;
        EXPECT_TRUE(machine.fromXml(c.xml)) << c.xml;
        EXPECT_EQ(findings.codes(), c.codes) << c.xml;
        EXPECT_EQ(machine.mass.value(), c.mass) << c.xml;
    }
    ReportedFindings findings;
    Machine machine;
    EXPECT_FALSE(machine.fromXml("<m"));
    EXPECT_TRUE(machine.invalid());
    EXPECT_FALSE(machine.fromXmlFile("no/such/file.xml"));
    EXPECT_FALSE(machine.toXml(AxFilename("no/such/dir/file.xml")));
    machine.label = AxString(std::string("a\x01"));
    machine.label.setValueSpecified(true, false);
    EXPECT_EQ(machine.toXml(), "");

    std::string deep = "x"; // too deep for the text to be read that the tree is made of
    for (int i = 0; i < 1100; ++i)
    {
        deep = '(' + deep + ')';
    }
    machine.keepItem({}, deep);
    findings.all.clear();
    EXPECT_EQ(machine.toXml(), "");
    EXPECT_FALSE(machine.toXml(AxFilename("no.xml")));
    EXPECT_EQ(findings.codes(), "write-failed@0:0 write-failed@0:0");
}

TEST(AxReaderWriterTree, FilesHoldWhatTextsHold)
{
    boost::filesystem::path const path =
        boost::filesystem::temp_directory_path() / boost::filesystem::unique_path("tree-%%%%%%.xml");
    AxFilename const file(path.string());
    Machine machine;
    ASSERT_TRUE(readFrom(machine, theWholeText));
    ASSERT_TRUE(machine.toXml(file));
    Machine back;
    EXPECT_TRUE(back.fromXmlFile(file));
    EXPECT_EQ(back.writtenText(), machine.writtenText());
    boost::filesystem::remove(path);
}

TEST(AxReaderWriterTree, AttributesAreReadByKind)
{
    AxEnvironmentPtr const env =
        treeOf("<m name='n' r='2.5' i='-7' w='3.0' h='0xFf' b='Yes' s='x' value='1:1:1:225:1:1:3:0'/>");
    AxEnvValuePtr const node = env->root();
    EXPECT_EQ(AxReaderWriter::getAttribute(env, "name", node), "n");
    EXPECT_EQ(AxReaderWriter::getAttribute(env, "absent", node), "");
    EXPECT_EQ(AxRwReal::getDouble(env, "r", node), 2.5);
    EXPECT_EQ(AxRwReal::getDouble(env, "s", node), 0.0);
    EXPECT_EQ(AxRwReal::getDouble(env, "r", AxEnvValuePtr()), 0.0);
    EXPECT_EQ(AxRwInt::getInt(env, "i", node), -7);
    EXPECT_EQ(AxRwInt::getInt(env, "w", node), 3);
    EXPECT_EQ(AxRwInt::getInt(env, "r", node), 0);
    EXPECT_EQ(AxRwInt::getIntegerFromHex(env, "h", node), 255);
    EXPECT_EQ(AxRwInt::getIntegerFromHex(env, "s", node), 0);
    EXPECT_TRUE(AxRwBoolean::getBoolAttribute(env, "b", node));
    EXPECT_FALSE(AxRwBoolean::getBoolAttribute(env, "s", node));
    EXPECT_EQ(AxRwObjectType::getObjectType(env, node), AxObjectType(1, 1, 225, 1, 1, 3, 0, 1));
}

TEST(AxReaderWriterTree, OneMemberIsReadFromItsRecordsElement)
{
    AxEnvironmentPtr const env = treeOf("<m name='n' old-mass='$heavy' seats='3'/>");
    Machine machine;
    machine.mass.addAlias("old-mass");
    EXPECT_TRUE(machine.mass.getVariableReference(env, env->root()));
    EXPECT_EQ(machine.mass.variableName(), "heavy");
    EXPECT_FALSE(machine.seats.getVariableReference(env, env->root()));
    machine.seats.getData(env, env->root(), AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
    EXPECT_EQ(machine.seats.value(), 3);
    EXPECT_TRUE(machine.seats.valueSpecified());
}

TEST(AxReaderWriterTree, ListsAreFilledByACreator)
{
    AxEnvironmentPtr const env = treeOf("<l><part name='a' power='1'/><!-- c --><other name='b'/><part name='c'/></l>");
    auto const make = [](AxString const& name) -> AxReaderWriter* { return new Part(AxSymbolString(name), nullptr); };
    for (auto const& [type, names] : {std::pair("", "abc"), std::pair("part", "ac"), std::pair("none", "")})
    {
        AxRwTemplatedListPtr<Part, 1> list("list", nullptr);
        AxString(type).isNull() ? list.populateList(make, env, env->root(), {}, {})
                                : list.populateListByType(make, env, env->root(), type, {}, {});
        std::string found;
        for (Part const* part : list)
        {
            found += part->AxReaderWriter::name().view();
        }
        EXPECT_EQ(found, names);
        EXPECT_TRUE(list.count() == 0 || list.firstElement()->writtenText() == "(a\n  (power 1.0))\n");
    }
}
