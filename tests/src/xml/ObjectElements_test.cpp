#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"
#include "AxZedXmlUtils.h"
#include "src/objparams/RecordFixture.h"

#include <iterator>
#include <random>

#include <boost/make_shared.hpp>

namespace
{
class ObjectElements : public RecordFixture
{
protected:
    static AxEnvironmentPtr treeOf(std::string const& xml)
    {
        return AxEnvXMLReader::readText(xml, AxFilename("test.entity"));
    }
    static RecordPtr recordIn(AxEnvironmentPtr const& env)
    {
        std::list<AxEnvValuePtr> elements;
        AxZedXmlUtils::getObjectElements(env, elements);
        RecordPtr record(AxZedXmlUtils::createParameters(env, elements.front(), {}, {}));
        std::vector<AxObjectType> matches;
        AxZedXmlUtils::getMatchTypes(env, elements.front(), matches);
        record->setObjectType(AxZedXmlUtils::getObjectType(env, elements.front()));
        record->setMatchType(matches.empty() ? record->objectType() : matches.front());
        return record;
    }
    static std::string elementOf(AxZedObjectParameters const& record)
    {
        auto const env = boost::make_shared<AxEnvironment>();
        std::string text;
        EXPECT_TRUE(AxZedXmlUtils::addObject(env, {}, record) && AxEnvXMLWriter().writeText(env, text));
        return text;
    }
};

constexpr char const* thePieces[] = {
    "<objectType name='objectType' value='1:1:1:225:1:1:3:0'/>",
    "<objectType value='1:1:1:225:1:1:3:1' odd='1'><b/></objectType>",
    "<matchType name='matchType' value='1:1:1:225:1:1:-1:-1'/>",
    "<objectTypes name='additional-match-types'><objectType name='a' value='1:1:1:225:1:2:-1:-1'/></objectTypes>",
    "<objectTypes name='additional-match-types'><objectType value='x'/>text<!--c--></objectTypes>",
    "<objectTypes name='others'><objectType value='1:1:1:225:1:2:-1:-1'/></objectTypes>",
    "<objectTypes/>",
    "<variableBindings name='variable-bindings'><variable name='a' value='2.0'/></variableBindings>",
    "<variableBindings><variable name='b c' value='$5' type='string'/><odd name='x'/></variableBindings>",
    "<variableBindings odd='1'><variable name='a' value='(1'/><variable/>text</variableBindings>",
    "<variableBindings/>",
    "<variable name='a' value='1'/>",
    "<componentSystem name='gun'><systemName name='systemName' value='no.sys'/></componentSystem>",
    "<componentSystem name='gun' is-enabled='false' odd='1'><odd name='x'/></componentSystem>",
    "<componentSystem><variableBindings><variable name='p' value='$a'/></variableBindings></componentSystem>",
    "<componentSystem><systemName value='no.sys' odd='1'>text</systemName></componentSystem>",
    "<guiInformation name='gui' label='M1'><strings name='categories' value='Tank'/></guiInformation>",
    "<guiInformation/>",
    "<odd name='x'>text</odd>",
    "<platform name='second' parameter-type='zed-object-param' mass='3'/>",
    "<!-- note -->",
    "text",
    "<?go now?>"};
constexpr char const* thePlatforms[] = {
    "<platform name='m1' parameter-type='zed-object-param' mass='$a'/>",
    "<platform name='m1' parameter-type='zed-object-param' odd='1'><odd name='y'/></platform>",
    "<platform parameter-type='zed-object-param'>text</platform>",
    "<platform name='m1' parameter-type='zed-object-param'><variableBindings name='v'/></platform>"};
constexpr char const* theObjects[] = {"<simObject name='m1'>", "<simObject>", "<simObject name='other' odd='1'>"};
} // namespace

TEST_F(ObjectElements, AnyPiecesSurviveBothNotations)
{
    std::mt19937 engine(13);
    auto const any = [&](auto const& texts) { return std::string(texts[engine() % std::size(texts)]); };
    for (int round = 0; round < 400; ++round)
    {
        std::string xml = any(theObjects);
        std::size_t const platform = engine() % 5;
        for (std::size_t i = 0; i < 5; ++i)
        {
            xml += i == platform ? any(thePlatforms) : any(thePieces);
        }
        xml += "</simObject>";
        SCOPED_TRACE(xml);
        RecordPtr const record = recordIn(treeOf(xml));
        ASSERT_TRUE(record);
        std::string const written = elementOf(*record);

        RecordPtr const again = recordIn(treeOf(written));
        ASSERT_TRUE(again);
        EXPECT_EQ(again->mass(), record->mass());
        EXPECT_EQ(again->systemDescriptorList().count(), record->systemDescriptorList().count());
        EXPECT_EQ(elementOf(*again), written);

        AxZedXmlUtils::keepOthers(*record, false);
        RecordPtr const fromText = created(record->writtenText());
        ASSERT_TRUE(fromText);
        fromText->setObjectType(record->objectType());
        fromText->setMatchType(record->matchType());
        EXPECT_EQ(elementOf(*fromText), written);
        if (testing::Test::HasFailure())
        {
            return;
        }
    }
}

TEST_F(ObjectElements, WhatStandsAroundAnObjectComesBackAroundIt)
{
    std::mt19937 engine(17);
    std::string const outside[] = {"", "<!-- note -->\n", "<?go now?>\n", "<!-- a -->\n<?b c?>\n"};
    std::string const others[] = {"<odd/>", "<odd name=\"x\" y=\"1\">text</odd>", "<!-- note -->", "<?go now?>"};
    auto const object = [](std::size_t number)
    {
        std::string const name = " name=\"m" + std::to_string(number) + "\"";
        return "<simObject" + name + "><platform" + name + " parameter-type=\"zed-object-param\"/></simObject>";
    };
    for (int round = 0; round < 200; ++round)
    {
        // The file as it is, and for each object as it is with that alone.
        std::size_t const count = 1 + engine() % 3;
        std::string file;
        std::vector<std::string> alone(count);
        auto const addToAll = [&](std::string const& text)
        {
            file += text;
            for (std::string& one : alone)
            {
                one += text;
            }
        };
        bool const isRoot = count == 1 && engine() % 3 == 0;
        addToAll(outside[engine() % 4] + (isRoot ? "" : "<force version=\"3\">"));
        for (std::size_t number = 0; number < count; ++number)
        {
            bool const isGrouped = !isRoot && engine() % 2 == 0;
            std::string const before = isRoot ? "" : others[engine() % 4];
            std::string const inGroup = "<wing name=\"w\">" + others[engine() % 4];
            addToAll(before);
            std::string const text = isGrouped ? inGroup + object(number) + "</wing>" : object(number);
            file += text;
            alone[number] += text;
        }
        addToAll(isRoot ? "" : others[engine() % 4] + "</force>");
        addToAll("\n" + outside[engine() % 4]);
        SCOPED_TRACE(file);
        AxEnvironmentPtr const env = treeOf(file);
        ASSERT_TRUE(env);
        std::list<AxEnvValuePtr> elements;
        AxZedXmlUtils::getObjectElements(env, elements);
        ASSERT_EQ(elements.size(), count);
        std::size_t number = 0;
        for (AxEnvValuePtr const& element : elements)
        {
            RecordPtr const record(AxZedXmlUtils::createParameters(env, element, {}, {}));
            ASSERT_TRUE(record);
            AxZedXmlUtils::keepOthers(*record, false);
            std::string written = elementOf(*created(record->writtenText()));
            std::size_t const added = written.find(" bounding-geometry-type=\"2\"");
            ASSERT_NE(added, std::string::npos) << written;
            written.erase(added, std::string(" bounding-geometry-type=\"2\"").size());
            EXPECT_TRUE(equalTrees(treeOf(written), treeOf(alone[number]))) << written << "\n" << alone[number];
            ++number;
        }
        if (HasFailure())
        {
            return;
        }
    }
}
