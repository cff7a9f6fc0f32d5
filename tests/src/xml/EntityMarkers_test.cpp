#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"
#include "AxZedXmlUtils.h"
#include "src/paramdb/DatabaseFixture.h"

#include <boost/make_shared.hpp>
#include <regex>
#include <set>

namespace
{
/// What nobody knows, in every kind of place: attributes, elements and texts, each with a number.
constexpr char const* theMarkers = R"(<simObject name="a" u1="x">
  <variableBindings name="variable-bindings" u2="1"><variable name="v" value="1" u3="1"/><u4/><variable name="w" value="2"><u5/></variable>u6</variableBindings>
  <objectType name="objectType" value="1:1:1:225:1:1:3:0" u7="1"><u8/></objectType>
  <matchType name="matchType" value="1:1:1:225:1:1:-1:-1" u9="1"/>
  <objectTypes name="additional-match-types" u10="1"><objectType value="1:1:1:225:1:2:-1:-1" u11="1"/></objectTypes>
  <platform name="a" parameter-type="aggregate-object-param" u12="1" mass="$v">
    u13
    <u14/>
    <u15 name="u15"><b/></u15>
    <offsetVector name="left-support" value="1 2 3" u16="1"><u17/>u18</offsetVector>
    <offsetVector name="right-support" u19="1" x="1"/>
    <offsetVector name="other-support" variable="$v" u20="1"/>
    <real name="max-speed">u21</real>
    <string name="category" value="b" u22="1"/>
    <objectTypes name="u23"/>
    <componentDescriptors name="sensors" u24="1">
      u25
      <u26/>
      <u27 name="u27" component-descriptor-type="object-sensor-descriptor"/>
      <componentDescriptor name="q" component-descriptor-type="object-sensor-descriptor" u28="1"><u29/>u30
        <objectTypes name="detection-types" u31="1"><objectType value="1:1:1:225:1:1:-1:-1" u32="1"/><u33/></objectTypes>
      </componentDescriptor>
    </componentDescriptors>
    <connections name="connections" u34="1"><connection name="connect" value="a:b c:d" u35="1"/><u36/></connections>
    <AxRwAutoConnections name="auto-connections" u37="1"><u38/></AxRwAutoConnections>
    <AxRadioDescriptors name="radios" u39="1"><AxRadioDescriptor name="n" frequency="5" u40="1"/><u41 name="m"/></AxRadioDescriptors>
    <attributes name="sensor-signatures" u42="1"><attribute name="v" value="1" u43="1"/><u44/></attributes>
    <properties name="parameter-data" u45="1"><property name="p" type="AxRwInt" value="1" u46="1"/><u47/>
      <property name="l" type="AxLoadPoint" load-point-name="ramp" u48="1"/></properties>
    <list name="resources" u49="1"><readerWriter type="real-resource" resource-name="z" u50="1"/><u51/></list>
    <AxRwDeadReckonThresholds name="dr-thresholds" rotation="5" u52="1"><u53/></AxRwDeadReckonThresholds>
    <AxTaskExecutionRules name="task-execution-rules" all-tasks-exclusive="true" u56="1"><u57/></AxTaskExecutionRules>
    <AxFormationTable name="formation-list" u58="1"><AxFormationTableEntry name="formation-entry" formation-type="c" u59="1"/><u60/></AxFormationTable>
  </platform>
  <componentSystem name="s" u61="1">u62<systemName name="systemName" value="s.sys" u63="1"/>
    <variableBindings name="vb" u64="1"><variable name="q" value="1" u65="1"/><u66/></variableBindings><u67/></componentSystem>
  <componentSystem name="t"><AxComponentSystemDefinition name="system-definition" u68="1"><u69/></AxComponentSystemDefinition></componentSystem>
  <guiInformation name="gui" label="L" u70="1"><strings name="categories" value="A" u71="1"/></guiInformation>
  <u72/>
</simObject>
)";

class EntityMarkers : public DatabaseFixture
{
protected:
    static std::set<std::string> markersIn(std::string const& text)
    {
        std::regex const marker("\\bu[0-9]+\\b");
        return {std::sregex_token_iterator(text.begin(), text.end(), marker), std::sregex_token_iterator()};
    }
    static RecordPtr recordIn(std::string const& xml)
    {
        AxEnvironmentPtr const env = AxEnvXMLReader::readText(xml, AxFilename("test.entity"));
        std::list<AxEnvValuePtr> elements;
        AxZedXmlUtils::getObjectElements(env, elements);
        return RecordPtr(AxZedXmlUtils::createParameters(env, elements.front(), {}, {}));
    }
    static std::string elementOf(AxZedObjectParameters const& record)
    {
        auto const env = boost::make_shared<AxEnvironment>();
        AxZedXmlUtils::addObject(env, AxEnvValuePtr(), record);
        std::string text;
        EXPECT_TRUE(AxEnvXMLWriter().writeText(env, text));
        return text;
    }
    /// By way of parameter text, which holds all of it too.
    std::string throughText(std::string const& xml)
    {
        RecordPtr const record = recordIn(xml);
        AxZedXmlUtils::keepOthers(*record, false);
        return elementOf(*created(record->writtenText()));
    }
};
} // namespace

TEST_F(EntityMarkers, WhatNobodyKnowsSurvivesBothNotations)
{
    std::set<std::string> const all = markersIn(theMarkers);
    ASSERT_EQ(all.size(), 70U);
    std::string const xml = elementOf(*recordIn(theMarkers));
    EXPECT_EQ(markersIn(xml), all) << xml;
    std::string const again = elementOf(*recordIn(xml));
    EXPECT_EQ(markersIn(again), all);
    EXPECT_EQ(again.size(), xml.size()) << "a conversion adds nothing:\n" << again;
    std::string const byText = throughText(theMarkers);
    EXPECT_EQ(markersIn(byText), all) << byText;
    EXPECT_EQ(markersIn(throughText(byText)), all);
}

TEST_F(EntityMarkers, EachIsToldOnce)
{
    RecordPtr const record = recordIn(theMarkers);
    std::map<std::string, int> told;
    for (AxDiagnostic const& finding : findings)
    {
        for (std::string const& marker : markersIn(finding.text))
        {
            ++told[marker];
        }
    }
    // What stands beside the record, and what stands in place of a value, which is told as missing.
    // Also attributes of a system whose definition, which is not there, may declare them.
    std::set<std::string> const others{"u1", "u10", "u11", "u19", "u21", "u61", "u70", "u71", "u72"};
    for (std::string const& marker : markersIn(theMarkers))
    {
        EXPECT_EQ(told[marker], others.contains(marker) ? 0 : 1) << marker;
    }
}

TEST_F(EntityMarkers, WhatStandsInPlaceOfAValueStays)
{
    // Values in other forms than theirs, next to what is told of them.
    for (auto const& [element, codes] :
         {std::pair("<real name=\"mass\">62000</real>", "wrong-kind"),
          std::pair("<real name=\"max-speed\" valeu=\"18\"/>", "wrong-kind"),
          std::pair("<offsetVector name=\"left-support\" x=\"1\" y=\"2\"/>", "wrong-kind"),
          std::pair("<mass>5</mass>", "wrong-kind"),
          std::pair("<AxRadioDescriptors name=\"radios\" note=\"1\"/>", "unknown-attribute"),
          std::pair("<AxTaskExecutionRules name=\"task-execution-rules\" all-tasks-exclusive=\"true\"/>", ""),
          std::pair("<AxTaskExecutionRules name=\"task-execution-rules\"/>", "")})
    {
        findings.clear();
        std::string const xml = std::string("<simObject name=\"a\">\n  <platform name=\"a\" "
                                            "parameter-type=\"moving-object-param\">\n    ") +
                                element + "\n  </platform>\n</simObject>\n";
        std::string const written = elementOf(*recordIn(xml));
        EXPECT_EQ(findings.empty() ? "" : findings[0].code, codes) << element;
        EXPECT_LE(findings.size(), 1U) << element;
        EXPECT_NE(written.find(element), std::string::npos) << written;
        EXPECT_EQ(elementOf(*recordIn(written)), written);
        EXPECT_NE(throughText(xml).find(element), std::string::npos) << throughText(xml);
    }
}

TEST_F(EntityMarkers, RefusedValuesOfAMemberStayBesideEachOther)
{
    std::string const xml = "<simObject><platform name=\"a\" parameter-type=\"moving-object-param\" mass=\"7\">"
                            "<real name=\"mass\">62000</real><mass>5</mass></platform></simObject>";
    std::string const written = elementOf(*recordIn(xml));
    EXPECT_NE(written.find("name=\"mass\" value=\"7.0\">62000</"), std::string::npos) << written;
    EXPECT_NE(written.find("<mass>5</mass>"), std::string::npos) << written;
    EXPECT_EQ(elementOf(*recordIn(written)), written);
}

TEST_F(EntityMarkers, VariablesOfASystemThatIsNotThereStayVariables)
{
    std::string const system = "<systemName name=\"systemName\" value=\"none.sys\"/>\n    <variableBindings "
                               "name=\"variable-bindings\">\n      <variable name=\"reload\" value=\"4.0\"/>\n      "
                               "<variable name=\"crew\" value=\"two\" type=\"string\"/>\n    </variableBindings>";
    std::string const xml = "<simObject name=\"a\"><platform name=\"a\" parameter-type=\"zed-object-param\"/>"
                            "<componentSystem name=\"s\">" +
                            system + "</componentSystem></simObject>";
    std::string const written = elementOf(*recordIn(xml));
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].code, "missing-file");
    EXPECT_NE(written.find(system), std::string::npos) << written;
    std::string const byText = throughText(xml);
    EXPECT_EQ(findings.back().code, "missing-file") << findings.back().format();
    EXPECT_NE(byText.find(system), std::string::npos) << byText;
}
