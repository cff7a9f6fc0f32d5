#include "Allocations.h"
#include "AxComponentDescriptorFactoryEntry.h"
#include "AxEmbarkationSlotEntry.h"
#include "AxEnvXMLReader.h"
#include "AxRwVariableBindings.h"
#include "AxZedXmlUtils.h"
#include "src/objparams/RecordFixture.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <random>

namespace
{

/// Records are read from characters where that is possible, and else from a tree. A processing instruction behind the
/// root makes the whole document one for the parser, which makes a whole tree; nothing else may come of it.
class XmlReading : public RecordFixture
{
protected:
    using Maker = std::function<std::unique_ptr<AxReaderWriter>()>;

    XmlReading()
    {
        variables.set(AxSymbolString("speed"), cellsOf("(12.5)"));
        variables.setString(AxSymbolString("label"), "a word");
    }
    /// What a record is after the reading, and what was told.
    std::string read(AxReaderWriter& record, std::string const& xml)
    {
        findings.clear();
        AxEnvironmentPtr const env = AxEnvXMLReader::readText(xml, AxFilename("test.xml"));
        if (!env)
        {
            return {};
        }
        record.getSelf(env, env->root(), AxReaderWriter::nullFilenames(), {&variables});
        std::string told = record.writtenText() + (record.invalid() ? "invalid" : "");
        for (AxDiagnostic const& finding : findings)
        {
            told += '\n' + finding.format() + '|' + finding.path + '|' + finding.hint + '|' +
                    std::to_string(finding.column);
        }
        return told + '\n' + record.toXml().string();
    }
    /// False when the text is no XML.
    bool expectSame(Maker const& make, std::string const& xml)
    {
        std::string const direct = read(*make(), xml);
        std::string const byTree = read(*make(), xml + "<?by tree?>");
        if (!direct.empty() || xml.find('?') == std::string::npos)
        {
            EXPECT_EQ(direct, byTree) << xml;
        }
        return !direct.empty();
    }
    Maker recordMaker(AxString const& type)
    {
        return [this, type] { return made(type.c_str()); };
    }
    static std::unique_ptr<AxReaderWriter> makeSlot()
    {
        return std::make_unique<AxEmbarkationSlotEntry>(AxSymbolString(), nullptr);
    }
    static Maker descriptorMaker(AxString const& type)
    {
        return [type]
        { return std::unique_ptr<AxReaderWriter>(AxComponentDescriptor::createComponentDescriptor(type.c_str())); };
    }
    /// The element with all values, without the declaration.
    static std::string fullXml(Maker const& make)
    {
        std::unique_ptr<AxReaderWriter> const empty = make();
        std::unique_ptr<AxReaderWriter> const record = make();
        empty->setName("one");
        readFrom(*record, empty->writtenText(true));
        std::string const xml = record->toXml().string();
        return xml.substr(xml.find('\n') + 1);
    }
    /// Every class that the factories make.
    void forEachClass(std::function<void(Maker const&)> const& visit)
    {
        for (AxString const& type : factory.typeNames())
        {
            visit(recordMaker(type));
        }
        for (AxListItem const* item = components.first(); item; item = item->next())
        {
            visit(descriptorMaker(static_cast<AxComponentDescriptorFactoryEntry const*>(item->data())->typeToCreate()));
        }
    }

    AxRwVariableBindings variables{"variables"};
};

constexpr char const* theRecord =
    R"(<platform name="m1" parameter-type="ground-vehicle-param" mass="57000.5" max-speed="$speed"
    display-name="$$5m &quot;Abrams&quot;" can-pivot="true" turning-radius=" 6.0 " max-slope="1e-1">
  <!-- where -->
  <offsetVector name="other-support" value="-2 0 0.5"/>
  <objectType name="object-type" value="1:1:1:225:1:1:3:0"/>
  <componentDescriptors name="sensors">
    <componentDescriptor name="eyes" component-descriptor-type="object-sensor-descriptor" detection-period="2" is-enabled="false"/>
    <componentDescriptor name="ears" detection-period="2" component-descriptor-type="object-sensor-descriptor" process-state-repository-name="5"/>
    <componentDescriptor name="odd" component-descriptor-type="no-such-type" detection-period="2"/>
  </componentDescriptors>
  <componentDescriptors name="controllers"/>
  <list name="resources"><readerWriter name="fuel" type="real-resource" amount="5"/></list>
  <unknown name="thing" a="1"><b/></unknown>
  <sexp name="old">(old 1 "two")</sexp>
</platform>
)";

/// Elements of the list have the class that their tag stands for.
constexpr char const* theSlot = R"(<AxEmbarkationSlotEntry name="left" slot-name="left">
  <offsetVector name="offset" value="1 2 3"/>
  <taitBryan name="orientation" value="0.5 0 0"/>
  <objectTypes name="object-types"><objectType value="1:1:1:225:1:1:3:0"/></objectTypes>
  <strings name="load-points" value="door &quot;back door&quot;"/>
  <slotExclusions name="slot-exclusions">
    <slotExclusion name="x" slot-name="right"/><slotExclusion name="y" slot-name="5" other="1"/><other name="z"/>
  </slotExclusions>
</AxEmbarkationSlotEntry>
)";
} // namespace

TEST_F(XmlReading, EveryClassIsReadAsFromItsTree)
{
    forEachClass(
        [this](Maker const& make)
        {
            std::string const xml = fullXml(make);
            EXPECT_TRUE(expectSame(make, xml));
            EXPECT_TRUE(findings.empty()) << findings[0].format();
        });
}

TEST_F(XmlReading, EveryClassIsReadAsFromItsTreeWhateverIsChanged)
{
    constexpr char const* texts[] = {" ", "\n",   "&amp;", "&#9;", "$",   "$speed", "$(label)", "$$", "name", "-",
                                     "a", "text", "1",     ".5",   "inf", "true",   "(",        ")",  ":",    ""};
    constexpr char const* pieces[] = {"<",
                                      "/",
                                      "\"",
                                      "'",
                                      "=",
                                      "<!--x-->",
                                      "text",
                                      "<b/>",
                                      " x='2' ",
                                      " value='1' ",
                                      " variable='$speed' ",
                                      " type='x' ",
                                      " a-type='b' ",
                                      "-type"};
    std::mt19937 engine(3);
    auto const pick = [&](std::size_t count) { return engine() % count; };
    int wellFormed = 0;
    auto const change = [&](Maker const& make, std::string xml)
    {
        for (std::size_t i = 1 + pick(3); i != 0; --i)
        {
            // Mostly in a text, where most stay well-formed.
            bool const isInText = pick(4) != 0;
            std::size_t at = xml.find_first_of(isInText ? "\"" : " \"=", pick(xml.size()));
            at = at == std::string::npos ? pick(xml.size()) : at + pick(2);
            xml.erase(at, pick(6) == 0 ? pick(6) : 0);
            xml.insert(at, isInText ? texts[pick(std::size(texts))] : pieces[pick(std::size(pieces))]);
        }
        wellFormed += expectSame(make, xml);
    };
    for (int round = 0; round < 300; ++round)
    {
        change(recordMaker("ground-vehicle-param"), theRecord);
        change(makeSlot, theSlot);
    }
    forEachClass(
        [&](Maker const& make)
        {
            std::string const xml = fullXml(make);
            for (int round = 0; round < 2; ++round)
            {
                change(make, xml);
            }
        });
    EXPECT_GT(wellFormed, 150);
}

TEST_F(XmlReading, OddElementsAreReadAsFromTheirTree)
{
    Maker const make = recordMaker("ground-vehicle-param");
    expectSame(make, theRecord);
    expectSame(makeSlot, theSlot);
    for (char const* part : {"mass='5' gross='6'",
                             "mass=' 5'",
                             "mass='5kg'",
                             "mass=''",
                             "mass='$'",
                             "mass='$$5'",
                             "mass='$(speed)'",
                             "mass='inf'",
                             "mass='-nan'",
                             "mass='1e400'",
                             "mass='0x10'",
                             "mass='+5'",
                             "mass='.5'",
                             "mass='5.'",
                             "category='5'",
                             "category='nan'",
                             "category='$label'",
                             "category='a $(label) b'",
                             "category='a $$(label)'",
                             "category=' x '",
                             "category='a&#10;b'",
                             "category='a\nb'",
                             "value='5'",
                             "variable='$speed'",
                             "variable='5'",
                             "type='x'",
                             "parameter-type='5'",
                             "parameter-type='$label'",
                             "other-type='y' parameter-type='ground-vehicle-param'",
                             "other-support='1 2 3'",
                             "sensors='x'",
                             "is-lifeform='YES'",
                             "is-lifeform='1'",
                             "is-lifeform=' true'",
                             "xmlns='u'"})
    {
        expectSame(make, std::string("<platform name='m' ") + part + " display-name='d'/>");
        expectSame(make, std::string("<platform ") + part + "/>");
        expectSame(make,
                   std::string("<platform name='m'><componentDescriptors name='sensors'><componentDescriptor name='s' "
                               "component-descriptor-type='object-sensor-descriptor' ") +
                       part + "/></componentDescriptors></platform>");
    }
    for (char const* child :
         {"<offsetVector name='other-support' value='1 2'/>",
          "<offsetVector name='other-support' value='1 2 3 4'/>",
          "<offsetVector name='other-support' value='(1 2 3)'/>",
          "<offsetVector name='other-support' value='a b c'/>",
          "<offsetVector name='other-support' value=''/>",
          "<offsetVector name='other-support'/>",
          "<offsetVector name='other-support' value=' 1  2 3 '/>",
          "<offsetVector name='other-support' value='1 2 3' x='1'/>",
          "<offsetVector name='other-support' value='1 2 3'><b/></offsetVector>",
          "<offsetVector name='other-support' variable='$speed'/>",
          "<other-support value='1 2 3'/>",
          "<offsetVector value='1 2 3'/>",
          "<objectType name='object-type' value=''/>",
          "<objectType name='object-type' value=' '/>",
          "<objectType name='other-support' value=''/>",
          "<objectType name='object-type' value='1 1 1 225 1 1 3 0'/>",
          "<objectType name='object-type' value='1:1'/>",
          "<objectType name='object-type' value='1:1:1:225:1:1:99999999999'/>",
          "<a name='object-type' value='-1:1:1:225:1:1:3:0'/>",
          "<a name='mass' value='5'/>",
          "<a name='category' value='x'/>",
          "<a name='sensors'>text</a>",
          "<a name='sensors' x='1'/>",
          "<a name='sensors' variable='$speed'/>",
          "<a name='sensors'><b/></a>",
          "<a name='sensors'><sexp>(x 1)</sexp></a>",
          "<a name='sensors'><!--c--></a>",
          "<a name='sensors'><b name='$x' component-descriptor-type='object-sensor-descriptor'/></a>",
          "<a name='sensors'><b name='5' component-descriptor-type='object-sensor-descriptor'/></a>",
          "<a name='sensors'><b name='a b' component-descriptor-type='object-sensor-descriptor'/></a>",
          "<a name='sensors'><b name='' component-descriptor-type='object-sensor-descriptor'/></a>",
          "<a name='sensors'><b component-descriptor-type='object-sensor-descriptor'/></a>",
          "<a name='sensors'><b name='x' component-descriptor-type='object sensor'/></a>",
          "<a name='sensors'><b name='x'><componentDescriptor name='component-descriptor-type' "
          "value='object-sensor-descriptor'/></b></a>",
          "<a name='sensors'><b name='x' component-descriptor-type='object-sensor-descriptor'>text</b></a>",
          "<a name='sensors'><b name='x' component-descriptor-type='object-sensor-descriptor'><c name='u' "
          "v='1'/></b></a>",
          "<a name='sensors'><b name='x' component-descriptor-type='object-sensor-descriptor'><c/></b></a>",
          "<a name='sensors'><sexp>(x (component-descriptor-type \"object-sensor-descriptor\"))</sexp></a>",
          "<property name='p' type='AxRwReal' value='5'/>",
          "<sexp>(mass 5)</sexp>",
          "<sexp after='mass'>(u 5)</sexp>",
          "<sexp after=''>(u 5)</sexp>",
          "<sexp>mass 5)</sexp>",
          "<sexp/>",
          "text",
          "<!--c-->",
          "<u/>",
          "<u name='v'/>",
          "<u name='$v' value='1'/>",
          "<u name='' value='1'/>",
          "<u name='v&amp;w' value='1'/>"})
    {
        std::string const item(child);
        expectSame(make, "<platform name='m'>" + item + "</platform>");
        expectSame(make, "<platform name='m' mass='5'><offsetVector name='other-support' value='1 2 3'/>" + item +
                             item + "<a name='controllers'/></platform>");
        expectSame(makeSlot, "<slot name='m'><offsetVector name='offset' value='1 2 3'/>" + item + "</slot>");
        expectSame(makeSlot,
                   "<slot name='m'><slotExclusions name='slot-exclusions'><slotExclusion name='s' slot-name='t'>" +
                       item + "</slotExclusion>" + item + "</slotExclusions></slot>");
    }
}

TEST_F(XmlReading, ObjectsOfFilesAreReadAsFromTheirTree)
{
    std::size_t objects = 0;
    for (std::filesystem::directory_entry const& file :
         std::filesystem::recursive_directory_iterator(ZEDOBJPARAM_SOURCE_DIR "/examples/force"))
    {
        if (file.path().extension() != ".entity")
        {
            continue;
        }
        std::ifstream in(file.path(), std::ios::binary);
        std::string const text{std::istreambuf_iterator<char>(in), {}};
        std::vector<std::string> outcomes[2];
        for (bool const byTree : {false, true})
        {
            AxEnvironmentPtr const env =
                AxEnvXMLReader::readText(text + (byTree ? "<?by tree?>" : ""), AxFilename("t.entity"));
            ASSERT_TRUE(env);
            std::list<AxEnvValuePtr> elements;
            AxZedXmlUtils::getObjectElements(env, elements);
            objects += elements.size();
            for (AxEnvValuePtr const& element : elements)
            {
                findings.clear();
                RecordPtr const record(AxZedXmlUtils::createParameters(env, element, {}, {}));
                ASSERT_TRUE(record);
                std::string told = record->writtenText(true);
                for (AxDiagnostic const& finding : findings)
                {
                    told += '\n' + finding.format();
                }
                outcomes[byTree].push_back(told);
            }
        }
        EXPECT_EQ(outcomes[0], outcomes[1]) << file.path();
    }
    EXPECT_GT(objects, 0U);
}

TEST_F(XmlReading, MakesNoNodesForUsualRecords)
{
    Maker const make = descriptorMaker("object-sensor-descriptor");
    std::string const xml = fullXml(make);
    auto const allocations = [&](std::string const& text)
    {
        std::unique_ptr<AxReaderWriter> const record = make();
        std::size_t const before = allocationCount();
        record->fromXml(AxString(text));
        return allocationCount() - before;
    };
    allocations(xml);
    EXPECT_LE(4 * allocations(xml), allocations(xml + "<?by tree?>"));
}
