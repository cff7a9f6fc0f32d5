#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"

#include <cstdio>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include "AxReadWholeFile.h"
#include "AxSinkScope.h"
#include "AxStreams.h"

namespace
{
AxEnvironmentPtr read(std::string const& text)
{
    return AxEnvXMLReader::readText(text, AxFilename("t.xml"));
}

std::string written(AxEnvironmentPtr const& env)
{
    std::string text;
    AxEnvXMLWriter().writeText(env, text);
    return text;
}

std::string const theHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

/// The one line that reading ends in.
std::string warningsOf(std::string const& text)
{
    AxSinkScope warnings(AxWarn);
    bool ok = true;
    EXPECT_EQ(AxEnvXMLReader::readText(text, AxFilename("t.xml"), &ok), nullptr);
    EXPECT_FALSE(ok);
    return warnings.text();
}

AxEnvObjectPtr rootOf(AxEnvironmentPtr const& env)
{
    return env->root()->castToObject();
}
} // namespace

TEST(AxEnvXML, WritesWhatItReadByteForByte)
{
    for (char const* text :
         {"<entities/>\n", "<a name=\"\"/>\n", "<a name=\"n\" value=\"1:2\" x=\"&lt;&amp;&quot;&#9;&#10;&#13;'\"/>\n",
          "<a>\n  <b/>\n  <c>\n    <d x=\"1\"/>\n  </c>\n</a>\n", "<a>text</a>\n",
          "<!--before-->\n<?go now?>\n<a/>\n<!--after-->\n",
          "<a>mixed <b><c/></b> text&#13;\n  with <!--note--> blanks </a>\n", "<a><![CDATA[]]>  </a>\n",
          "<p:a xmlns:p=\"u\">\n  <p:b/>\n</p:a>\n", "<a v=\"$Name ${x} $(y)\"/>\n",
          "<\xC3\xA4 b=\"\xE2\x82\xAC\"/>\n"})
    {
        EXPECT_EQ(written(read(theHead + text)), theHead + text);
    }
}

TEST(AxEnvXML, DropsBlanksBetweenElementsOnly)
{
    AxEnvironmentPtr env = read("<a>\n  <b>\n</b> <c> x </c>\n</a>");
    AxEnvObjectPtr root = rootOf(env);
    ASSERT_EQ(root->count(), 2U);
    EXPECT_EQ(root->children()[0]->castToObject()->count(), 0U);
    EXPECT_EQ(root->children()[1]->castToList()->children()[0]->value(), " x ");
}

TEST(AxEnvXML, TellsTreesApartByWhateverStandsInThem)
{
    static constexpr char const* theTexts[] = {"<a/>",           "<b/>",
                                               "<a name=''/>",   "<a name='n'/>",
                                               "<a x='1'/>",     "<a x='2'/>",
                                               "<a y='1'/>",     "<a x='1' y='1'/>",
                                               "<a>1</a>",       "<a>2</a>",
                                               "<a><b/></a>",    "<a><b/><b/></a>",
                                               "<a><b/>1</a>",   "<a><!--1--></a>",
                                               "<a><?b 1?></a>", "<a><?b 2?></a>",
                                               "<!--1--><a/>",   "<a/><!--1-->"};
    for (char const* one : theTexts)
    {
        for (char const* other : theTexts)
        {
            EXPECT_EQ(equalTrees(read(one), read(other)), one == other) << one << ' ' << other;
        }
    }
}

TEST(AxEnvXML, JoinsNeighbouringTextAndCdata)
{
    AxEnvironmentPtr env = read("<a>1 &lt; <![CDATA[2 & <3>]]>&#33;</a>");
    ASSERT_EQ(rootOf(env)->count(), 1U);
    EXPECT_EQ(rootOf(env)->children()[0]->value(), "1 < 2 & <3>!");
    EXPECT_TRUE(equalTrees(env, read(written(env))));
}

TEST(AxEnvXML, TellsAnAbsentNameFromAnEmptyOneAndPutsItFirst)
{
    EXPECT_FALSE(rootOf(read("<a/>"))->hasName());
    EXPECT_TRUE(rootOf(read("<a name=''/>"))->hasName());
    AxEnvironmentPtr env = read("<a x='1' name='n' y='2'/>");
    EXPECT_EQ(written(env), theHead + "<a name=\"n\" x=\"1\" y=\"2\"/>\n");
    EXPECT_TRUE(equalTrees(env, read("<a name='n' x='1' y='2'/>")));
    EXPECT_FALSE(equalTrees(env, read("<a name='n' y='2' x='1'/>")));
}

TEST(AxEnvXML, GivesEveryNodeItsPlace)
{
    AxEnvironmentPtr env = read("<a>\n  <b/>\n</a>");
    AxEnvValuePtr child = rootOf(env)->children()[0];
    EXPECT_EQ(child->line(), 2U);
    EXPECT_EQ(child->column(), 3U);
}

TEST(AxEnvXML, GivesEveryAttributeItsPlaceInBytes)
{
    struct Case
    {
        std::string text;
        char const* attribute;
        unsigned line;
        unsigned column;
    };
    std::string inUtf16 = "\xFF\xFE";
    for (char const byte : std::string("<a x='1'/>"))
    {
        inUtf16 += {byte, '\0'};
    }
    for (Case const& one : {Case{"<a x='1' name='>' y = \"'\"/>", "y", 1, 19},
                            {"<a x='1'\r\n\t y='2'\n/>", "y", 2, 3},
                            {"<!--\n-->\n<a\n\nx='1\n' y='2'\n/>", "y", 6, 3},
                            {"<a x='\xC3\xA4' y='2'/>", "y", 1, 11},
                            {"\xEF\xBB\xBF<a x='1'/>", "x", 1, 4},
                            {inUtf16, "x", 1, 1}})
    {
        AxEnvValuePtr const value = rootOf(read(one.text))->attributeNode(one.attribute);
        ASSERT_TRUE(value) << one.text;
        EXPECT_EQ(value->line(), one.line) << one.text;
        EXPECT_EQ(value->column(), one.column) << one.text;
    }
}

TEST(AxEnvXML, AnyTreeReadsBackEqual)
{
    std::mt19937 engine(7);
    auto pick = [&](std::size_t count) { return static_cast<unsigned>(engine() % count); };
    static constexpr char const* theTexts[] = {"",    " ",    "a",       "<&>\"'", "\r\n\t", "\xC3\xA9",
                                               "]]>", "x  y", "\n   \n", "$(v)",   "  \r",   "\xF0\x9F\x9A\x80"};
    for (int round = 0; round < 500; ++round)
    {
        auto env = boost::make_shared<AxEnvironment>();
        std::vector<AxEnvObjectPtr> objects{env->addObject("root")};
        for (unsigned i = pick(30); i != 0; --i)
        {
            AxEnvObjectPtr parent = objects[pick(objects.size())];
            char const* text = theTexts[pick(std::size(theTexts))];
            bool textIsLast = parent->count() != 0 && !parent->children().back()->isList();
            switch (pick(4))
            {
            case 0:
                env->addAttribute("a" + AxString::fromUnsigned(pick(5)), text, parent);
                break;
            case 1:
                if (!textIsLast)
                {
                    env->addValue(text, parent);
                }
                break;
            case 2:
                objects.push_back(env->addObject(text, "named", parent));
                break;
            default:
                objects.push_back(env->addUnnamedObject("plain", parent));
            }
        }
        ASSERT_TRUE(equalTrees(env, read(written(env)))) << written(env);
    }
}

TEST(AxEnvXML, RefusesEntityDeclarationsAtTheirLine)
{
    std::string const bomb = "<!DOCTYPE a [\n<!ENTITY x \"ha\">\n<!ENTITY y \"&x;&x;&x;\">\n]>\n<a>&y;</a>";
    std::string const lines = warningsOf(bomb);
    EXPECT_NE(lines.find("t.xml:2:"), std::string::npos) << lines;
    EXPECT_NE(lines.find("entity declarations are not accepted"), std::string::npos) << lines;
    EXPECT_NE(warningsOf("<!DOCTYPE a [<!ENTITY x SYSTEM \"/etc/passwd\">]><a>&x;</a>").find("not accepted"),
              std::string::npos);
    EXPECT_NE(warningsOf("<!DOCTYPE a [<!ENTITY % x SYSTEM \"x.dtd\"> %x;]><a/>").find("not accepted"),
              std::string::npos);
    EXPECT_NE(warningsOf("<!DOCTYPE a SYSTEM \"a.dtd\"><a>&x;</a>").find("entity \"x\" is not declared"),
              std::string::npos);
}

TEST(AxEnvXML, DropsADocumentTypeWithALine)
{
    AxSinkScope warnings(AxWarn);
    AxEnvironmentPtr env = read("<!DOCTYPE a [<!ATTLIST a x CDATA \"1\">]>\n<a/>");
    EXPECT_EQ(written(env), theHead + "<a/>\n");
    EXPECT_NE(warnings.text().find("[xml-doctype]"), std::string::npos) << warnings.text();
}

TEST(AxEnvXML, ReportsEveryFailureInOneLineWithItsPlace)
{
    struct Case
    {
        std::string text;
        char const* place;
        char const* part;
    };
    std::string const deep = []
    {
        std::string text;
        for (int i = 0; i < 257; ++i)
        {
            text += "<a>";
        }
        return text;
    }();
    for (Case const& one :
         {Case{"", "t.xml:1:1:", "no element found"},
          {"<a>\n</b>", "t.xml:2:3:", "mismatched tag"},
          {"<a x='1' x='2'/>", "t.xml:1:10:", "duplicate attribute"},
          {deep, "t.xml:1:769:", "elements are nested deeper than 256"},
          {"<?xml version='1.0' encoding='koi8-r'?><a/>", "t.xml:1:", "encoding \"koi8-r\" is not supported"},
          {"<a>\xFF</a>", "t.xml:1:4:", "not well-formed"}})
    {
        std::string const lines = warningsOf(one.text);
        EXPECT_TRUE(lines.starts_with(one.place)) << lines;
        EXPECT_NE(lines.find(one.part), std::string::npos) << lines;
        EXPECT_EQ(lines.find('\n'), lines.size() - 1) << lines;
    }
}

TEST(AxEnvXML, AcceptsElementsAsDeepAsTheLimit)
{
    std::string text;
    for (int i = 0; i < 255; ++i)
    {
        text += "<a>";
    }
    text += "<b/>";
    for (int i = 0; i < 255; ++i)
    {
        text += "</a>";
    }
    AxEnvironmentPtr env = read(text);
    ASSERT_NE(env, nullptr);
    EXPECT_TRUE(equalTrees(env, read(written(env))));
}

TEST(AxEnvXML, ReadsEncodings)
{
    using namespace std::string_literals;
    auto valueOf = [](std::string const& text) { return *rootOf(read(text))->attribute("v"); };
    EXPECT_EQ(valueOf("<a v='\xC3\xA9'/>"), "\xC3\xA9");
    EXPECT_EQ(valueOf("<?xml version='1.0' encoding='ISO-8859-1'?><a v='\xE9'/>"), "\xC3\xA9");
    EXPECT_EQ(valueOf("<?xml version='1.0' encoding='Windows-1252'?><a v='\x80\x9F\xE9'/>"),
              "\xE2\x82\xAC\xC5\xB8\xC3\xA9");
    EXPECT_EQ(valueOf("\xFF\xFE<\0a\0 \0v\0=\0'\0\xE9\0'\0/\0>\0"s), "\xC3\xA9");
}

TEST(AxEnvXML, TakesTextThatIsNotUtf8AsWindows1252)
{
    auto env = boost::make_shared<AxEnvironment>();
    env->addAttribute("label", "\x80 5", env->addObject("a"));
    AxSinkScope warnings(AxWarn);
    EXPECT_EQ(written(env), theHead + "<a label=\"\xE2\x82\xAC 5\"/>\n");
    EXPECT_NE(warnings.text().find("attribute \"label\" is not UTF-8"), std::string::npos) << warnings.text();
}

TEST(AxEnvXML, RefusesToWriteWhatXmlCannotHold)
{
    struct Case
    {
        char const* name;
        char const* value;
        char const* part;
    };
    for (Case const& one : {Case{"label", "a\x01", "attribute \"label\" holds the character U+0001"},
                            {"label", "\xEF\xBF\xBF", "U+FFFF"},
                            {"two words", "", "\"two words\" cannot name"},
                            {"", "", "\"\" cannot name"},
                            {"1st", "", "\"1st\" cannot name"}})
    {
        auto env = boost::make_shared<AxEnvironment>();
        env->addAttribute(one.name, one.value, env->addObject("a"));
        AxSinkScope warnings(AxWarn);
        std::string text = "old";
        EXPECT_FALSE(AxEnvXMLWriter().writeText(env, text));
        EXPECT_EQ(text, "");
        EXPECT_NE(warnings.text().find(one.part), std::string::npos) << warnings.text();
    }
}

TEST(AxEnvXML, CommentsAndInstructionsAreWrittenOrRefusedWithAReason)
{
    struct Case
    {
        AxString type;
        char const* name;
        char const* text;
        char const* written; // null: refused
    };
    AxString const comment = AxEnvObject::commentType();
    AxString const instruction = AxEnvObject::instructionType();
    for (Case const& one : {Case{comment, "", " a - b ", "<!-- a - b -->"},
                            {comment, "", "a--b", nullptr},
                            {comment, "", "a-", nullptr},
                            {comment, "", "a\rb", nullptr},
                            {comment, "", "a\x01", nullptr},
                            {instruction, "go", "", "<?go?>"},
                            {instruction, "go", "x ? y >", "<?go x ? y >?>"},
                            {instruction, "xmk", "x", "<?xmk x?>"},
                            {instruction, "xnl", "x", "<?xnl x?>"},
                            {instruction, "yml", "x", "<?yml x?>"},
                            {instruction, "xml", "x", nullptr},
                            {instruction, "xMl", "x", nullptr},
                            {instruction, "two words", "x", nullptr},
                            {instruction, "go", "x?>", nullptr},
                            {instruction, "go", "x\ry", nullptr},
                            {instruction, "go", " x", nullptr}})
    {
        AxEnvironmentPtr const env = read("<a/>");
        auto const object = boost::make_shared<AxEnvObject>(one.name, one.type);
        ASSERT_TRUE(env->prologue()->add(object));
        env->addValue(one.text, object);
        AxSinkScope warnings(AxWarn);
        EXPECT_EQ(written(env), one.written != nullptr ? theHead + one.written + "\n<a/>\n" : "");
        EXPECT_EQ(warnings.text().empty(), one.written != nullptr) << one.name << one.text;
    }
}

TEST(AxEnvXML, WritesOnlyWhatIsADocument)
{
    auto const make = [](AxString const& type) { return boost::make_shared<AxEnvObject>(type); };
    struct Case
    {
        char const* part;
        std::function<void(AxEnvironment&)> change;
    };
    for (auto const& [part, change] :
         {Case{"root is no element", [](auto& env) { env.setRoot(boost::make_shared<AxEnvValue>("text")); }},
          {"root is no element", [&](auto& env) { env.setRoot(make(AxEnvObject::commentType())); }},
          {"outside of the root", [](auto& env) { env.epilogue()->add(boost::make_shared<AxEnvValue>("text")); }},
          {"outside of the root", [&](auto& env) { env.prologue()->add(make("b")); }},
          {"more than text", [](auto& env) { env.addObject("b", "c", env.addObject(AxEnvObject::commentType())); }},
          {"deeper than 256", [](auto& env)
           {
               AxEnvValuePtr last = env.root();
               for (int level = 0; level < 256; ++level)
               {
                   last = env.addUnnamedObject("a", last);
               }
           }}})
    {
        AxEnvironmentPtr const env = read("<a/>");
        change(*env);
        AxSinkScope warnings(AxWarn);
        EXPECT_EQ(written(env), "");
        EXPECT_NE(warnings.text().find(part), std::string::npos) << part << ": " << warnings.text();
    }

    AxEnvironmentPtr const env = read("<a/>");
    env->setRoot(boost::make_shared<AxEnvNamedList>("n"));
    EXPECT_EQ(written(env), theHead + "<list name=\"n\"/>\n");
}

TEST(AxEnvXML, WritesAFileOrLeavesTheOldOne)
{
    AxFilename const file(testing::TempDir() + "written.entity");
    AxEnvXMLWriter writer;
    writer.setIndentation(4);
    AxEnvironmentPtr env = read("<a><b/></a>");
    ASSERT_TRUE(writer.writeFile(env, file));
    std::string text;
    int error = 0;
    ASSERT_TRUE(axReadWholeFile(file, text, error));
    EXPECT_EQ(text, theHead + "<a>\n    <b/>\n</a>\n");

    AxSinkScope warnings(AxWarn);
    AxEnvironmentPtr bad = read("<a/>");
    bad->addAttribute("x", "\x02", bad->root());
    EXPECT_FALSE(writer.writeFile(bad, file));
    EXPECT_FALSE(writer.writeFile(boost::make_shared<AxEnvironment>(), file));
    EXPECT_FALSE(writer.writeFile(env, AxFilename(testing::TempDir() + "no-such-directory/x.entity")));
    bool ok = false;
    EXPECT_TRUE(equalTrees(AxEnvXMLReader::readFile(file, &ok), env));
    EXPECT_TRUE(ok);
    std::remove(file.c_str());
    EXPECT_EQ(AxEnvXMLReader::readFile(file, &ok), nullptr);
    EXPECT_FALSE(ok);
}
