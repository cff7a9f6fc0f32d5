#include "XmlEditor.h"

#include "Database.h"
#include "Edited.h"
#include "ExampleTexts.h"
#include "ReadContext.h"
#include "XmlText.h"

#include <gtest/gtest.h>
#include <string>

namespace
{
std::string editedXml(std::string const& text, std::string const& edit, bool force = false)
{
    std::unique_ptr<Database> const database = Database::openNone();
    ReadContext const context("a.entity", *database);
    XmlEditor editor("a.entity", text, {}, context, force);
    return edited(editor, text, edit);
}

std::string object(std::string const& platform)
{
    return "<?xml version='1.0'?><!-- > \"quoted\" --><simObject name='a'>\n  <objectType value='1:1:1:1:1:1:1:1'/>\n"
           "  <platform parameter-type='moving-object-param'" +
           platform + "\n</simObject>\n";
}
} // namespace

TEST(XmlEditor, ChangesTheBytesOfTheValueAlone)
{
    struct
    {
        std::string before;
        std::string edit;
        std::string after;
    } const cases[] = {
        {" mass = '5.0'  category=\"c\"/>", "mass=6", " mass = '6'  category=\"c\"/>"},
        {" category=\"c\"/>", "category=a \"b\" <&>'", " category=\"a &quot;b&quot; &lt;&amp;>'\"/>"},
        {" category='c>'/>", "category='\t", " category='&apos;&#9;'/>"},
        {" mass='5.0'/>", "mass=heavy", "wrong-kind"},
        {" mass='5.0'/>", "mass=-1", "out-of-range"},
        {" mass='5.0'/>", "mass=$m", "unbound-variable"},
        {" mass='5.0'/>", "mas=1", "unknown-keyword"},
        {" hue='red'/>", "hue=blue", "unknown-keyword"},
        {" mass='5.0'/>", "/mass=1", "no-path"},
        {" mass='5.0'/>", "max-speed=6", " mass='5.0' max-speed=\"6\"/>"},
        {" />", "max-speed=6", " max-speed=\"6\" />"},
        {" mass='5.0'/>", "other-support=1 2 3",
         " mass='5.0'>\n    <offsetVector name=\"other-support\" value=\"1.0 2.0 3.0\"/>\n  </platform>"},
        {"/>", "sensor-signatures/x=2",
         ">\n    <attributes name=\"sensor-signatures\">\n      <attribute name=\"x\" value=\"2.0\"/>\n    "
         "</attributes>\n"
         "  </platform>"},
        {">\n    <attributes name='sensor-signatures'> <attribute name='x' value='1'/></attributes></platform>",
         "dr-thresholds/rotation=3",
         ">\n    <AxRwDeadReckonThresholds name=\"dr-thresholds\" rotation=\"3.0\"/>\n    <attributes "
         "name='sensor-signatures'> <attribute name='x' value='1'/></attributes></platform>"},
        {"><properties name='parameter-data'><property name='x' type='AxRwInt' value='4'/></properties></platform>",
         "parameter-data/x=5",
         "><properties name='parameter-data'><property name='x' type='AxRwInt' value='5'/></properties></platform>"},
        {"><properties name='parameter-data'><property name='x' type='AxRwInt' value='4'/></properties></platform>",
         "parameter-data/x=many", "wrong-kind"},
        {">\n    <!-- note -->\n    <offsetVector name='left-support' value='1 2 3'/></platform>",
         "other-support=4 5 6",
         ">\n    <!-- note -->\n    <offsetVector name='left-support' value='1 2 3'/>\n"
         "    <offsetVector name=\"other-support\" value=\"4.0 5.0 6.0\"/></platform>"},
        {"><offsetVector name='left-support' value='1 2 3'/></platform>", "left-support=4 5 6",
         "><offsetVector name='left-support' value='4 5 6'/></platform>"},
        {"><offsetVector name='left-support' value='1 2 3'/></platform>", "left-support=4 5", "wrong-kind"},
        {"><attributes name='sensor-signatures'><attribute name='x' value='1'/></attributes></platform>",
         "sensor-signatures/x=2",
         "><attributes name='sensor-signatures'><attribute name='x' value='2'/></attributes></platform>"},
        {" mass='5.0' category='c'/>", "-mass", " category='c'/>"},
        {">\n    <offsetVector name='left-support' value='1'/>\n    <!-- > -->\n  </platform>", "-left-support",
         ">\n    <!-- > -->\n  </platform>"},
        {"><AxRwDeadReckonThresholds name='dr-thresholds'><!-- x --></AxRwDeadReckonThresholds></platform>",
         "-dr-thresholds", "comment-lost"},
        {"/>", "-parameter-type", "unreadable"},
        {"/>", "-mass", "unknown-keyword"}};
    for (auto const& [before, edit, after] : cases)
    {
        bool const isFault = after.find('>') == std::string::npos;
        EXPECT_EQ(editedXml(object(before), edit), isFault ? after : object(after)) << before << edit;
    }
    EXPECT_EQ(editedXml(object(" hue='red'/>"), "hue=blue", true), object(" hue='blue'/>"));
    EXPECT_EQ(editedXml("<entities><simObject name='a'/><simObject name='b'/></entities>", "mass=1"), "no-object");
    EXPECT_EQ(editedXml("<simObject>", "mass=1"), "unreadable");
}

TEST(XmlEditor, GivesTheSameBytesWhenAValueIsSetBack)
{
    for (auto const& [file, text] : exampleTexts())
    {
        if (!file.ends_with("a2.entity") && !file.ends_with("c.entity")) // some tanks and aircraft
        {
            continue;
        }
        std::unique_ptr<Database> const database = Database::openNone();
        ReadContext const context(file, *database);
        XmlEditor editor(file, text, {}, context, true);
        EXPECT_TRUE(editor.set("under-fire-distance", "12") && editor.unset("under-fire-distance")) << file;
        EXPECT_EQ(editor.text(), text);
        EXPECT_TRUE(editor.set("display-name", "<\"'&>\t")) << file << editor.fault().format();
        std::size_t const changed = editor.text().find("&lt;");
        ASSERT_NE(changed, std::string::npos) << file;
        EXPECT_EQ(editor.text().substr(0, changed).rfind("display-name="), changed - 14);
    }
}
