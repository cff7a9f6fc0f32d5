#include "AxZedXmlUtils.h"

#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"
#include "AxMovingObjectParameters.h"
#include "AxRwVariableBindings.h"
#include "src/paramdb/DatabaseFixture.h"

#include <boost/make_shared.hpp>
#include <cstring>

namespace
{
constexpr char const* theForceXml = R"(<entities>
  <simObject name="m1">
    <variableBindings name="variable-bindings">
      <variable name="road-speed" value="18.5"/>
      <variable name="label" value="$5m &quot;Abrams&quot;" type="string"/>
    </variableBindings>
    <objectType name="objectType" value="1:1:1:225:1:1:3:0"/>
    <matchType name="matchType" value="1:1:1:225:1:1:-1:-1"/>
    <objectTypes name="additional-match-types">
      <objectType name="m60" value="1:1:1:225:1:2:-1:-1"/>
    </objectTypes>
    <platform name="m1" parameter-type="moving-object-param" max-speed="$road-speed" display-name="$label">
      <offsetVector name="other-support" value="-2 0 0"/>
      <componentDescriptors name="sensors">
        <componentDescriptor name="eyes" component-descriptor-type="object-sensor-descriptor" detection-period="2"/>
      </componentDescriptors>
    </platform>
    <guiInformation name="gui" label="M1">
      <strings name="categories" value="Tank &quot;Main battle&quot;"/>
    </guiInformation>
  </simObject>
  <group>
    <simObject name="any-truck">
      <objectType name="objectType" value=""/>
      <matchType name="matchType" value="1:1:1:-1:6:-1:-1:-1"/>
      <platform parameter-type="moving-object-param" max-speed="22"/>
    </simObject>
  </group>
</entities>
)";

class AxZedXmlUtilsTest : public DatabaseFixture
{
protected:
    static AxEnvironmentPtr treeOf(std::string_view xml)
    {
        AxEnvironmentPtr const env = AxEnvXMLReader::readText(xml, AxFilename("test.entity"));
        EXPECT_TRUE(env);
        return env;
    }
    static std::vector<AxEnvValuePtr> objectsOf(AxEnvironmentPtr const& env)
    {
        std::list<AxEnvValuePtr> elements;
        AxZedXmlUtils::getObjectElements(env, elements);
        return {elements.begin(), elements.end()};
    }
    static RecordPtr recordOf(AxEnvironmentPtr const& env, AxEnvValuePtr const& element,
                              AxFilenameList const& paths = {}, AxBindingsList const& bindings = {})
    {
        return RecordPtr(AxZedXmlUtils::createParameters(env, element, paths, bindings));
    }
    /// The record in the one object element of a text.
    static RecordPtr recordIn(std::string_view xml)
    {
        AxEnvironmentPtr const env = treeOf(xml);
        return recordOf(env, objectsOf(env).at(0));
    }
    static std::string elementOf(AxZedObjectParameters const& record)
    {
        auto const env = boost::make_shared<AxEnvironment>();
        EXPECT_TRUE(AxZedXmlUtils::addObject(env, AxEnvValuePtr(), record));
        std::string text;
        EXPECT_TRUE(AxEnvXMLWriter().writeText(env, text));
        return text;
    }
    std::string codes() const
    {
        std::string text;
        for (AxDiagnostic const& finding : findings)
        {
            text += (text.empty() ? "" : " ") + finding.code + '@' + std::to_string(finding.line);
        }
        return text;
    }
    AxObjectType const m60s = typeOf("1:1:1:225:1:2:-1:-1");
};
} // namespace

TEST_F(AxZedXmlUtilsTest, FindsObjectsByTheirTypes)
{
    AxEnvironmentPtr const env = treeOf(theForceXml);
    std::vector<AxEnvValuePtr> const objects = objectsOf(env);
    ASSERT_EQ(objects.size(), 2U);
    EXPECT_EQ(AxZedXmlUtils::getObjectType(env, objects[0]), tank);
    std::vector<AxObjectType> types;
    AxZedXmlUtils::getMatchTypes(env, objects[0], types);
    EXPECT_EQ(types, (std::vector<AxObjectType>{tanks, m60s}));
    EXPECT_TRUE(AxZedXmlUtils::getObjectType(env, objects[1]).isNull());
    EXPECT_EQ(AxZedXmlUtils::findObjectElementByObjectType(env, tank), objects[0]);
    EXPECT_EQ(AxZedXmlUtils::findObjectElementByMatchType(env, m60s), objects[0]);
    EXPECT_EQ(AxZedXmlUtils::findObjectElementByMatchType(env, typeOf("1:1:1:-1:6:-1:-1:-1")), objects[1]);
    EXPECT_FALSE(AxZedXmlUtils::findObjectElementByMatchType(env, tank)) << "equality, no matching";
    EXPECT_FALSE(AxZedXmlUtils::findObjectElementByObjectType(env, tanks));
    EXPECT_FALSE(AxZedXmlUtils::findObjectElementByObjectType(env, AxObjectType()));
    EXPECT_EQ(codes(), "");
}

TEST_F(AxZedXmlUtilsTest, OfTwoElementsOfATypeTheLaterAnswersAndARootMayBeAnObject)
{
    AxEnvironmentPtr const env =
        treeOf("<f><simObject><objectType value='1:1:1:225:1:1:3:0'/></simObject>"
               "<simObject><objectType value='1:1:1:225:1:1:3:0'/><simObject/></simObject></f>");
    EXPECT_EQ(AxZedXmlUtils::findObjectElementByObjectType(env, tank), objectsOf(env).at(1));
    EXPECT_EQ(objectsOf(env).size(), 2U);
    EXPECT_EQ(objectsOf(treeOf("<simObject/>")).size(), 1U);
    EXPECT_TRUE(objectsOf(AxEnvironmentPtr()).empty());
}

TEST_F(AxZedXmlUtilsTest, MakesTheRecordOfAnElement)
{
    AxEnvironmentPtr const env = treeOf(theForceXml);
    AxEnvValuePtr const element = objectsOf(env).at(0);
    RecordPtr const record = recordOf(env, element);
    ASSERT_TRUE(record);
    auto const& moving = dynamic_cast<AxMovingObjectParameters const&>(*record);
    EXPECT_EQ(record->AxReaderWriter::name(), "m1");
    EXPECT_EQ(moving.maxSpeed(), 18.5);
    EXPECT_EQ(moving.otherSupport().x(), -2.0);
    EXPECT_EQ(record->displayName(), "$5m \"Abrams\"");
    EXPECT_EQ(record->sensorDescriptorList().count(), 1);
    EXPECT_EQ(record->findVariableBinding("road-speed"), "18.5");
    EXPECT_EQ(record->xmlEnvironment(), env);
    EXPECT_EQ(record->objectNode(), element);
    RecordPtr const truck = recordOf(env, objectsOf(env).at(1));
    EXPECT_EQ(truck->AxReaderWriter::name(), "any-truck") << "the platform has no name of its own";
    EXPECT_EQ(codes(), "");
}

TEST_F(AxZedXmlUtilsTest, ElementsAreWrittenAsTheyWereRead)
{
    std::string const xml = "<simObject name=\"m1\">\n"
                            "  <variableBindings name=\"variable-bindings\">\n"
                            "    <variable name=\"a\" value=\"1.0 b\"/>\n"
                            "    <variable name=\"b c\" value=\"$5 &quot;x&quot;\" type=\"string\"/>\n"
                            "  </variableBindings>\n"
                            "  <platform name=\"m1\" parameter-type=\"point-object-param\" "
                            "bounding-geometry-type=\"2\" mass=\"$a\" odd=\"1\">\n"
                            "    <future name=\"x\"/>\n"
                            "  </platform>\n"
                            "  <componentSystem name=\"gun\" is-enabled=\"true\">\n"
                            "    <systemName name=\"systemName\" value=\"no-such.sys\"/>\n"
                            "    <future name=\"y\"/>\n"
                            "  </componentSystem>\n"
                            "  <componentSystem name=\"hull\" is-enabled=\"false\"/>\n"
                            "</simObject>\n";
    RecordPtr const record = recordIn(xml);
    ASSERT_TRUE(record);
    EXPECT_EQ(elementOf(*record).substr(39), xml);
    RecordPtr const fromText = created(record->writtenText());
    fromText->setParameterType("point-object-param");
    EXPECT_EQ(elementOf(*fromText).substr(39), xml);
}

TEST_F(AxZedXmlUtilsTest, SystemsTakeVariablesForWhatTheirDefinitionDeclares)
{
    put("gun.sys", R"((system-definition (meta-data (parameter-data-list
        (real-parameter-data (parameter-name "reload") (variable-type "AxRwReal") (default-value 8.0))
        (string-parameter-data (parameter-name "belt") (variable-type "AxRwString") (default-value "x"))
        (vector-parameter-data (parameter-name "muzzle") (variable-type "AxRwVector") (default-value 0 0 0))))))");
    RecordPtr const written(created(record("")));
    AxFilenameList const paths{AxFilename(directory())};
    written->getSelf(
        cellsOf(record("(systems (gun (system-definition \"gun.sys\") (is-enabled true) (foo 1) (belt \"12\")"
                       " (muzzle 1 2 3) (reload $fast)) (gun2 (system-definition \"gun.sys\")))")),
        paths, {});
    EXPECT_EQ(codes(), "unknown-keyword@1");
    std::string const xml = elementOf(*written);
    EXPECT_NE(xml.find("<variable name=\"reload\" value=\"$fast\"/>"), std::string::npos) << xml;
    EXPECT_NE(xml.find("<variable name=\"belt\" value=\"12\" type=\"string\"/>"), std::string::npos) << xml;
    EXPECT_NE(xml.find("<variable name=\"muzzle\" value=\"1.0 2.0 3.0\"/>"), std::string::npos) << xml;
    AxEnvironmentPtr const env = treeOf(xml);
    RecordPtr const back = recordOf(env, objectsOf(env).at(0), paths);
    EXPECT_EQ(back->writtenText(), written->writtenText()) << xml;
    EXPECT_TRUE(*back == *written);
}

TEST_F(AxZedXmlUtilsTest, WhatStandsBesideTheRecordSurvivesBothNotations)
{
    std::string const xml =
        "<simObject name=\"the M1\" revision=\"7\">\n"
        "  <objectTypes name=\"additional-match-types\">\n"
        "    <objectType name=\"m60\" value=\"1:1:1:225:1:2:-1:-1\"/>\n"
        "  </objectTypes>\n"
        "  <platform name=\"m1\" parameter-type=\"zed-object-param\" bounding-geometry-type=\"2\"/>\n"
        "  <guiInformation name=\"gui\" label=\"M1\" odd=\"1\">\n"
        "    <strings name=\"categories\" value=\"Tank\"/>\n"
        "  </guiInformation>\n"
        "  <!-- to be told -->\n"
        "  <future name=\"x\">later</future>\n"
        "</simObject>\n";
    RecordPtr const record = recordIn(xml);
    ASSERT_TRUE(record);
    EXPECT_EQ(elementOf(*record).substr(39), xml);
    AxZedXmlUtils::keepOthers(*record, false);
    std::string const text = record->writtenText();
    AxZedXmlUtils::keepOthers(*record, false);
    EXPECT_EQ(record->writtenText(), text);
    RecordPtr const fromText = created(text);
    EXPECT_EQ(codes(), "") << text;
    EXPECT_EQ(elementOf(*fromText).substr(39), xml);
}

TEST_F(AxZedXmlUtilsTest, SetsOfVariablesStayApart)
{
    std::string const text = record("(variable-bindings (a 1.0) (b 2.0)) (variable-bindings (a 3.0) (c 4.0))"
                                    " (variable-bindings (c 5.0)) (min-tick-period $c) (mass $a) (systems (gun"
                                    " (system-definition \"$(b).sys\")))");
    RecordPtr const read(created(text));
    AxEnvironmentPtr const env = treeOf(elementOf(*read));
    RecordPtr const back = recordOf(env, objectsOf(env).at(0));
    ASSERT_TRUE(back);
    EXPECT_EQ(back->writtenText(), read->writtenText());
    EXPECT_EQ(back->mass(), 1.0);
    EXPECT_EQ(back->minTickPeriod(), 4.0);
    EXPECT_EQ(back->variableBindingsFromLoad().size(), 3U);
    EXPECT_EQ(codes(), "missing-file@1 missing-file@11") << "the definition is named with a variable of the text";
}

TEST_F(AxZedXmlUtilsTest, VariablesThatCannotBeReadSurviveBothNotations)
{
    struct Case
    {
        char const* xml;
        char const* codes;
    };
    for (auto const& [xml, expected] :
         {Case{"<variable name=\"a\"/>", "incomplete-variable@1"},
          Case{"<variable value=\"1\"/>", "incomplete-variable@1"},
          Case{"<variable name=\"a\" value=\"(1 2\"/>", "unreadable-variable@1"},
          Case{"<variable name=\"a\" value=\"1) (mass 5\"/>", "unreadable-variable@1"},
          Case{"<variable name=\"a\" value=\")\"/>", "unreadable-variable@1"},
          Case{"<variable name=\"a\" value=\"&quot;\"/>", "unreadable-variable@1"},
          Case{"<variable name=\"a\" value=\"; 1\"/>", "incomplete-variable@1"},
          Case{"<future name=\"a\"/>", "unknown-element@1"}, Case{"<!-- of the gun -->", ""}})
    {
        for (char const* const owner : {"", "<componentSystem name=\"gun\">"})
        {
            findings.clear();
            std::string const variables =
                std::string("<variableBindings><variable name=\"b\" value=\"2.0\"/>") + xml + "</variableBindings>";
            RecordPtr const record =
                recordIn("<simObject><platform name=\"m1\" parameter-type=\"zed-object-param\" mass=\"$b\"/>" +
                         (*owner == 0 ? variables : owner + variables + "</componentSystem>") + "</simObject>");
            ASSERT_TRUE(record) << xml;
            std::string const ofSystem = *owner == 0 ? "" : "unknown-keyword";
            EXPECT_EQ(codes().substr(0, std::strlen(expected)), expected) << xml;
            EXPECT_EQ(record->mass(), *owner == 0 ? 2.0 : 5000.0) << xml;
            findings.clear();
            RecordPtr const fromText = created(record->writtenText());
            EXPECT_EQ(codes().find("not-a-variable"), std::string::npos) << record->writtenText();
            EXPECT_NE(elementOf(*fromText).find(xml), std::string::npos) << elementOf(*fromText);
        }
    }
    RecordPtr const record =
        created("(m1 (parameter-type \"zed-object-param\") (variable-bindings (a) word (1 2) (b 3)))");
    AxEnvironmentPtr const env = treeOf(elementOf(*record));
    EXPECT_EQ(recordOf(env, objectsOf(env).at(0))->writtenText(), record->writtenText());
}

TEST_F(AxZedXmlUtilsTest, FaultsAreToldAtTheirLines)
{
    struct Case
    {
        char const* xml;
        char const* codes;
        bool isRead;
    };
    Case const cases[] = {
        {"<f>\n<simObject/></f>", "no-platform@2", false},
        {"<simObject>\n<platform name='a'/></simObject>", "no-parameter-type@2", false},
        {"<simObject>\n<platform parameter-type='zed-object-parm'/></simObject>", "unknown-type@2", false},
        {"<simObject>\n<platform parameter-type='zed-object-param'/>\n<platform/></simObject>", "repeated-element@3",
         true},
        {"<simObject>\n<platform parameter-type='zed-object-param'\nmass='heavy'/></simObject>", "wrong-kind@3", true},
        {"<simObject>\n<platform parameter-type='zed-object-param' mas='1'/></simObject>", "unknown-keyword@2", true},
        {"<simObject><platform parameter-type='zed-object-param'/><variableBindings>\n<variable name='a'/>\n"
         "<variable value='1'/></variableBindings></simObject>",
         "incomplete-variable@2 incomplete-variable@3", true},
        {"<simObject><platform parameter-type='zed-object-param'/><componentSystem name='a'>\n"
         "<systemName value='no-such.sys'/>\n<systemName value='b'/></componentSystem></simObject>",
         "repeated-element@3 missing-file@2", true},
    };
    for (Case const& c : cases)
    {
        findings.clear();
        EXPECT_EQ(recordIn(c.xml) != nullptr, c.isRead) << c.xml;
        EXPECT_EQ(codes(), c.codes) << c.xml;
    }
    findings.clear();
    AxEnvironmentPtr const env =
        treeOf("<simObject>\n<objectType value='1:2'/>\n<matchType value='x'/>\n<objectType/></simObject>");
    EXPECT_TRUE(AxZedXmlUtils::getObjectType(env, env->root()).isNull());
    std::vector<AxObjectType> types;
    AxZedXmlUtils::getMatchTypes(env, env->root(), types);
    EXPECT_TRUE(types.empty());
    EXPECT_EQ(codes(), "repeated-element@4 wrong-kind@2 wrong-kind@3");
    EXPECT_FALSE(AxZedXmlUtils::createParameters(env, AxEnvValuePtr(), {}, {}));
}

TEST_F(AxZedXmlUtilsTest, FilesThatCannotBeReadAreToldWhenAskedTo)
{
    EXPECT_FALSE(AxZedXmlUtils::CreateZedXmlEnvironment(AxFilename(path("none.entity")), false));
    EXPECT_FALSE(AxZedXmlUtils::CreateZedXmlEnvironment(put("bad.entity", "<a>"), false));
    EXPECT_EQ(codes(), "");
    EXPECT_FALSE(AxZedXmlUtils::CreateZedXmlEnvironment(AxFilename(path("bad.entity")), true));
    EXPECT_EQ(codes(), "xml-syntax@1");
    AxEnvironmentPtr const env = treeOf(theForceXml);
    EXPECT_TRUE(AxZedXmlUtils::writeEnvironment(env, AxFilename(path("force.entity"))));
    EXPECT_TRUE(equalTrees(AxZedXmlUtils::CreateZedXmlEnvironment(AxFilename(path("force.entity")), true), env));
    EXPECT_FALSE(AxZedXmlUtils::writeEnvironment(AxEnvironmentPtr(), AxFilename(path("force.entity"))));
}

TEST_F(AxZedXmlUtilsTest, BindingCharactersAreEscapedOneToOne)
{
    struct Case
    {
        char const* literal;
        char const* attribute;
    };
    for (auto const& [literal, attribute] :
         {Case{"$5", "$$5"}, Case{"$", "$$"}, Case{"$$a", "$$$a"}, Case{"a$b", "a$b"}, Case{"", ""},
          Case{"a/$(dir)", "a/$(dir)"}, Case{"$(dir)/b", "$(dir)/b"}, Case{"$$(x)", "$$(x)"}})
    {
        EXPECT_EQ(AxZedXmlUtils::escapeBindings(literal), attribute);
        EXPECT_EQ(AxZedXmlUtils::unescapeBindings(attribute), literal);
    }
    EXPECT_EQ(AxZedXmlUtils::unescapeBindings("$speed"), "$speed") << "a reference";
}
