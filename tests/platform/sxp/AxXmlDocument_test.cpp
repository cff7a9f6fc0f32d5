#include "AxEnvXMLReader.h"
#include "AxSinkScope.h"
#include "AxStreams.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>

namespace
{
/// All that a tree says, with the places.
void describe(AxEnvValuePtr const& node, std::string& out)
{
    auto const place = [&out](AxEnvValue const& value)
    { out += " @" + std::to_string(value.line()) + ':' + std::to_string(value.column()); };
    place(*node);
    out += '[' + node->value().string() + ']';
    AxEnvObjectPtr const object = node->castToObject();
    if (!object)
    {
        return;
    }
    out += object->type().string() + (object->hasName() ? '=' + object->name().string() : std::string());
    for (AxEnvObject::Attribute const& attribute : object->attributes())
    {
        out += '|' + attribute.name.string() + '=' + attribute.value->value().string();
        place(*attribute.value);
        EXPECT_EQ(attribute.value->parent(), node);
    }
    out += '{';
    for (AxEnvValuePtr const& child : object->children())
    {
        EXPECT_EQ(child->parent(), node);
        describe(child, out);
    }
    out += '}';
}

std::string treeOf(std::string const& text, std::string& findings)
{
    AxSinkScope warnings(AxWarn);
    AxEnvironmentPtr const env = AxEnvXMLReader::readText(text, AxFilename("t.xml"));
    findings = warnings.text();
    std::string out;
    if (env)
    {
        describe(env->prologue()->count() != 0 ? env->prologue()->children()[0] : env->root(), out);
        describe(env->root(), out);
        out += std::to_string(env->prologue()->count());
    }
    return out;
}

/// A document with a processing instruction is not plain, and is read by the parser.
void expectReadAsByTheParser(std::string const& text)
{
    std::string findings;
    std::string parsed;
    std::string const tree = treeOf(text, findings);
    std::string const parsedTree = treeOf(text + "<?parse this?>", parsed);
    if (!tree.empty() || text.find('?') == std::string::npos)
    {
        EXPECT_EQ(tree, parsedTree) << text;
    }
    if (!tree.empty())
    {
        EXPECT_EQ(findings, parsed) << text;
    }
}

constexpr char const* theDocuments[] = {
    "<a/>",
    "\xEF\xBB\xBF<a/>\n",
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!--one-->\n<a b='1' name=\"n\"\n\tc = '&#x41;&amp;&#10;'>\n"
    "  <!-- two -->\n  <b-c.d:e_f x=\"&lt;\r\n\t'\" y='\"'/>\r\n  <c>text &gt; &#228; ]] more\r\nlines</c "
    ">\n</a>\n<!---->",
    "<?xml version='1.0'?><a>  <b name=''>\xC3\xA4 \xE2\x82\xAC \xF0\x9F\x9A\x80</b><b/><c><d><e x='1'/></d></c></a>",
    "<a>mixed <b/> text</a>",
    "<a><b><![CDATA[ ]]></b></a>",
    "<!DOCTYPE a><a/>",
    "<a x='\t'><sexp after=\"b\">(c \"d\" 1)</sexp></a>",
};
} // namespace

TEST(AxXmlDocument, IsWhatTheParserMakesOfIt)
{
    for (char const* text : theDocuments)
    {
        expectReadAsByTheParser(text);
    }
    for (char const* odd : {"",
                            " ",
                            "<",
                            "<a",
                            "<a>",
                            "<a></b>",
                            "<a/><b/>",
                            "<a/>x",
                            "x<a/>",
                            "<a x/>",
                            "<a x=/>",
                            "<a x=1/>",
                            "<a x='1'y='2'/>",
                            "<a x='1' x='2'/>",
                            "<a x='<'/>",
                            "<a x='&'/>",
                            "<a x='&a;'/>",
                            "<a x='&#0;'/>",
                            "<a x='&#xD800;'/>",
                            "<a x='&#65536;'/>",
                            "<a x='&#1114112;'/>",
                            "<a x='&#xFFFF;'/>",
                            "<a x='&#x;'/>",
                            "<a x='&#99999999999;'/>",
                            "<a>]]></a>",
                            "<a>&#32;</a>",
                            "<a> &#32; b</a>",
                            "<a><!-- -- --></a>",
                            "<a><!-- ---></a>",
                            "<a>\x01</a>",
                            "<a>\xC3</a>",
                            "<a x='\xED\xA0\x80'/>",
                            "<a>\xEF\xBF\xBF</a>",
                            "<a>\x7F\xC2\x85</a>",
                            "<1/>",
                            "<:a/>",
                            "<a:/>",
                            "< a/>",
                            "<a / >",
                            "<a></ a>",
                            "<a></a",
                            "<\xC3\xA4/>",
                            " <?xml version='1.0'?><a/>",
                            "<?xml version='1.1'?><a/>",
                            "<?xml version='1.0' encoding='latin1'?><a/>",
                            "<?xml version='1.0' encoding='utf-8' standalone='yes'?><a/>",
                            "<?xml version='1.0' encoding=\"utf-8'?><a/>",
                            "<a>\r</a>",
                            "<a>\rb\r\n\r</a>",
                            "<a><!--\r--></a>",
                            "<a x='\r\n\r\r\n'/>",
                            "<a> <b/> c</a>",
                            "<a> c <b/></a>"})
    {
        expectReadAsByTheParser(odd);
    }
    EXPECT_EQ(treeOf(std::string("<a/>\0", 5), *std::make_unique<std::string>()), "");
}

TEST(AxXmlDocument, StaysSoWhateverIsChangedInIt)
{
    std::mt19937 engine(20);
    auto const pick = [&](std::size_t count) { return engine() % count; };
    constexpr char const* pieces[] = {"<",   ">",    "/",    "\"",     "'",   "=",         " ",    "\n",          "\r",
                                      "\t",  "&",    ";",    "&#",     "&#x", "&lt;",      "a",    "name",        "x",
                                      "-",   "--",   "<!--", "-->",    "]]>", "\xC3",      "\xA4", "\x02",        "1",
                                      "<a>", "</a>", "<b/>", " x='2'", ":",   "<![CDATA[", "]]>",  "<!DOCTYPE a>"};
    for (int round = 0; round < 20000; ++round)
    {
        std::string text = theDocuments[pick(std::size(theDocuments))];
        for (std::size_t i = 1 + pick(3); i != 0; --i)
        {
            std::size_t const at = pick(text.size() + 1);
            text.erase(at, pick(3) == 0 ? pick(5) : 0);
            text.insert(at, pick(4) != 0 ? pieces[pick(std::size(pieces))] : "");
        }
        expectReadAsByTheParser(text);
    }
}

TEST(AxXmlDocument, IsPlainUpToItsLimits)
{
    for (int const depth : {255, 256, 257})
    {
        std::string nested;
        for (int i = 0; i < depth; ++i)
        {
            nested += "<a>";
        }
        for (int i = 0; i < depth; ++i)
        {
            nested += "</a>";
        }
        expectReadAsByTheParser(nested);
    }
    for (int const count : {600, 699, 700, 701, 1500})
    {
        std::string element = "<a";
        for (int i = 0; i < count; ++i)
        {
            element += " a" + std::to_string(i) + "='1'";
        }
        expectReadAsByTheParser(element + "/>");
        expectReadAsByTheParser(element + " a599='2'/>");
    }
}

TEST(AxXmlDocument, ChangesOfATreeKeepTheRest)
{
    auto const root = []
    { return AxEnvXMLReader::readText("<a x='1'><b/><c/></a>", AxFilename())->root()->castToObject(); };
    auto const shown = [](AxEnvObject const& object)
    {
        std::string out = object.type().string();
        for (AxEnvObject::Attribute const& attribute : object.attributes())
        {
            out += '|' + attribute.name.string() + '=' + attribute.value->value().string();
        }
        for (AxEnvValuePtr const& child : object.children())
        {
            out += ' ' + child->castToObject()->type().string();
        }
        return out;
    };
    AxEnvObjectPtr object = root();
    object->add(boost::make_shared<AxEnvObject>("d"));
    EXPECT_EQ(shown(*object), "a|x=1 b c d");
    object = root();
    object->insert(0, boost::make_shared<AxEnvObject>("d"));
    EXPECT_EQ(shown(*object), "a|x=1 d b c");
    object = root();
    object->setAttribute("y", "2");
    object->setAttribute("x", "3");
    EXPECT_EQ(shown(*object), "a|x=3|y=2 b c");
    object = root();
    EXPECT_TRUE(object->removeAttribute("x"));
    EXPECT_EQ(shown(*object), "a b c");
    object = root();
    object->removeAll();
    EXPECT_EQ(shown(*object), "a|x=1");
    object = root();
    object->setName("n");
    object->setType("e");
    EXPECT_EQ(shown(*object), "e|x=1 b c");
    EXPECT_EQ(object->name(), "n");
}

TEST(AxXmlDocument, NodesOutliveTheTree)
{
    AxEnvValuePtr child;
    {
        AxEnvironmentPtr const env = AxEnvXMLReader::readText("<a><b><c x='1'/></b></a>", AxFilename());
        child = env->root()->castToList()->children()[0];
    }
    EXPECT_EQ(child->parent(), nullptr);
    EXPECT_EQ(*child->castToList()->children()[0]->castToObject()->attribute("x"), "1");
}
