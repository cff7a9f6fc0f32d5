#include "AxDefaultComponentDescriptorFactory.h"
#include "AxDefaultParameterFactory.h"
#include "AxDiagnostic.h"
#include "AxHumanParameters.h"
#include "AxRwScriptVariablesList.h"
#include "AxSimArtPartDescriptorList.h"
#include "AxSinkScope.h"
#include "AxSoilList.h"
#include "CatalogueTable.h"

#include <boost/algorithm/string.hpp>
#include <boost/core/demangle.hpp>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <typeinfo>
#include <vector>

namespace
{
struct Keyword
{
    std::string text;
    std::string kind;
};

struct Type
{
    std::string name;
    std::string base;
    std::vector<Keyword> own;
};

/// Values in the text of a member: two, of which at least one is no default, and one of the wrong kind.
struct Sample
{
    std::string values[2];
    std::string wrong;
};

std::vector<Type> const& catalogue()
{
    static std::vector<Type> const types = []
    {
        std::vector<Type> result;
        std::vector<std::string> lines;
        boost::split(lines, theCatalogue, boost::is_any_of("\n"));
        for (std::string const& line : lines)
        {
            if (line.starts_with(' '))
            {
                std::string rest = boost::trim_copy(line);
                for (std::size_t end = 0; !rest.empty(); rest.erase(0, end))
                {
                    end = std::min(rest.find(';'), rest.size());
                    std::size_t const blank = rest.find(' ');
                    result.back().own.push_back({rest.substr(0, blank), rest.substr(blank + 1, end - blank - 1)});
                    end = std::min(rest.find_first_not_of("; ", end), rest.size());
                }
            }
            else if (std::size_t const colon = line.find(" : "); colon != std::string::npos)
            {
                result.push_back({line.substr(0, colon), line.substr(colon + 3), {}});
            }
        }
        return result;
    }();
    return types;
}

Type const& typeNamed(std::string const& name)
{
    for (Type const& type : catalogue())
    {
        if (type.name == name)
        {
            return type;
        }
    }
    throw std::runtime_error("no type " + name);
}

/// All keywords of a type; one that is bound again moves to its new place.
std::vector<Keyword> keywordsOf(Type const& type)
{
    std::vector<Keyword> all = type.base == "-" ? std::vector<Keyword>() : keywordsOf(typeNamed(type.base));
    for (Keyword const& keyword : type.own)
    {
        std::erase_if(all, [&](Keyword const& older) { return older.text == keyword.text; });
        all.push_back(keyword);
    }
    return all;
}

bool isRecord(Type const& type)
{
    return type.name.ends_with("-param");
}

/// Neither object record nor component, and so without an item that tells the type.
bool isPart(Type const& type)
{
    return AxReaderWriter::factory()->knowsType(type.name);
}

/// What the compiler calls a class that the catalogue knows by a shorter name.
std::string classOf(std::string const& kind)
{
    static std::map<std::string, std::type_info const*> const aliases = {
        {"AxRadioDescriptorList", &typeid(AxRadioDescriptorList)},
        {"AxRwBoundingGeometryType", &typeid(AxRwBoundingGeometryType)},
        {"AxRwDeadReckonTypes", &typeid(AxRwDeadReckonTypes)},
        {"AxRwForceType", &typeid(AxRwForceType)},
        {"AxRwFormationType", &typeid(AxRwFormationType)},
        {"AxRwIndividualLifeFormStateType", &typeid(AxRwIndividualLifeFormStateType)},
        {"AxRwIndividualLifeFormWeaponStateType", &typeid(AxRwIndividualLifeFormWeaponStateType)},
        {"AxRwScriptVariablesList", &typeid(AxRwScriptVariablesList)},
        {"AxSimArtPartDescriptorList", &typeid(AxSimArtPartDescriptorList)},
    };
    auto const alias = aliases.find(kind);
    return alias == aliases.end() ? kind : boost::core::demangle(alias->second->name());
}

Sample const& sampleOf(std::string const& kind)
{
    Sample const reals{{"12.5", "0.5"}, "heavy"};
    Sample const integers{{"7", "3"}, "many"};
    Sample const vectors{{"1.5 -2.5 3.5", "0.0 0.0 1.0"}, "1.5 2.5"};
    Sample const words{{"\"a word\"", "other"}, "(a b)"};
    Sample const wordLists{{"\"a b\" \"c\"", "\"d\""}, "(a b)"};
    Sample const boxes{{"(min -1.0 -2.0 -3.0) (max 1.0 2.0 3.0)", "(max 1.0 1.0 1.0)"}, "(min 1.0 2.0)"};
    Sample const properties{{"(fuel AxRwReal 0.5)", "(crew AxRwInt 3)"}, "(fuel AxRwReal heavy)"};
    Sample const components{{"(eye (component-descriptor-type \"component-descriptor\"))",
                             "(ear (component-descriptor-type \"object-sensor-descriptor\"))"},
                            "(eye (component-descriptor-type \"no-such-descriptor\"))"};
    Sample const factors{{"(\"mud\" 0.4)", "(\"sand\" 0.7) (\"mud\" 0.2)"}, "(\"mud\" heavy)"};
    static std::map<std::string, Sample> const samples = {
        {"AxRwReal", reals},
        {"AxRwInt", integers},
        {"AxRwUnsigned", {{"7", "3"}, "-3"}},
        {"AxRwAppearance", {{"7", "3"}, "-3"}},
        {"AxRwBoolean", {{"true", "false"}, "maybe"}},
        {"AxRwString", words},
        {"AxReaderWriterFile", {{"\"no-such.file\"", "\"no-other.file\""}, "(a b)"}},
        {"AxRwVector", vectors},
        {"AxRwOffsetVector", vectors},
        {"AxRwTaitBryan", vectors},
        {"AxRwObjectType", {{"1 1 1 225 1 1 3 0", "1 2 2 225 1 1 0 0"}, "1 1 1 225 1 1"}},
        {"AxRwEntityType", {{"2 2 225 2 1 0 0", "2 9 225 2 1 0 0"}, "2 2 225 2 1 0"}},
        {"AxRwObjectTypeList", {{"(1 1 1 225 -1 -1 -1 -1)", "(1 1 2 -1 -1 -1 -1 -1)"}, "(1 1 1 225 1 1)"}},
        {"AxRwStringList", wordLists},
        {"AxRwNLengthStringVector", wordLists},
        {"AxNLengthRealVector", {{"1000.0 2000.0", "5.0"}, "1000.0 far"}},
        {"AxRwRealAttributeList", factors},
        {"AxRwSoilSpeedFactorList", factors},
        {"AxRwSensorSignatureList", factors},
        {"Ax1DRegularTableFn", {{"(x-step 10.0) (values 2.0 5.0)", "(values 1.0)"}, "(x-step far)"}},
        {"AxRwProperties", properties},
        {"AxRwSpatialFilterContainer",
         {{"(sphere-filter (max-range 300.0))", "(sector-filter (azimuth-width 1.0))"},
          "(sphere-filter (max-range far))"}},
        {"AxRangeProbabilityTable",
         {{"(entity-range (entity-type 1 1 225 1 1 3 0) (range-determinant (range-list (range-entry 9.0 (hit 0.3)))))",
           "(entity-range (entity-type 1 2 225 1 1 3 0) (range-determinant (coefficients (hit -0.1 1.0))))"},
          "(entity-range (entity-type 1 1 225 1))"}},
        {"AxAmmoSelectTable",
         {{"(ammo-select (target-type 1 1 225 1 1 3 0) (ammo (munition (munition-name \"sabot\"))))",
           "(ammo-select (target-type 1 2 225 1 1 3 0) (ammo (munition (munition-name \"heat\"))))"},
          "(ammo-select (target-type 1 1 225 1))"}},
        {"AxTargetSelectionCriteria", {{"(max-targets 3)", "(max-targets 4)"}, "(max-targets many)"}},
        {"AxRwDetectionLevelContainer",
         {{"(level-thresholds (\"detected\" 0.2))", "(level-thresholds (\"identified\" 0.4))"},
          "(level-thresholds (\"detected\" low))"}},
        {"AxSensorFieldOfViewEntry", {{"(range 4000.0)", "(azimuth 0.5)"}, "(range far)"}},
        {"AxEmitterSystemEntry",
         {{"(emitter-name 35) (beams (beam (frequency 9.4e9)))", "(emitter-function 2)"}, "(emitter-name radar)"}},
        {"AxActiveSonarSystemEntry",
         {{"(acoustic-name 3) (beams (beam (scan-pattern 1)))", "(acoustic-function 1)"}, "(acoustic-name sonar)"}},
        {"AxRwSpotReportDeltaCheckList",
         {{"(delta-check (object-type 1 1 2 -1 -1 -1 -1 -1) (delta 2000.0))", "(delta-check (delta 1.0))"},
          "(delta-check (delta far))"}},
        {"AxRwScriptVariablesList", properties},
        {"AxRwTemplatedListPtr<AxRwJoystickControl, 1>", {{"(yaw (axis 2))", "(roll (axis 1))"}, "(yaw (axis left))"}},
        {"AxSimArtPartDescriptorList",
         {{"(turret (part-type 4096))", "(gun (part-type 4416))"}, "(turret (part-type heavy))"}},
        {"AxRwBoundingGeometryType", {{"1", "3"}, "box"}},
        {"AxRwBoundingVolume", boxes},
        {"AxRwFormationType", integers},
        {"AxRwForceType", integers},
        {"AxRwDeadReckonTypes", integers},
        {"AxRwIndividualLifeFormStateType", integers},
        {"AxRwIndividualLifeFormWeaponStateType", integers},
        {"AxRwNavigationParameters", {{"(clearance-radius 2.5)", "(clearance-radius 3.5)"}, "(clearance-radius far)"}},
        {"AxRwDeadReckonThresholds", {{"(translation 0.75)", "(rotation 4.0)"}, "(translation far)"}},
        {"AxRadioDescriptorList", {{"(net (frequency 45e6))", "(net (power 40.0))"}, "(net (frequency high))"}},
        {"AxComponentSystemDescriptorList", {{"(gun)", "(radar)"}, "(gun (is-enabled maybe))"}},
        {"AxComponentDescriptorList", components},
        {"AxConnectionDescriptorList",
         {{"(connect eye:detected gun:targets)", "(connect a:b c:d)"}, "(connect (a b) c)"}},
        {"AxSimResourceManager",
         {{"(real-resource (resource-name \"fuel\") (amount 9.0))", "(integer-resource (resource-name \"rounds\"))"},
          "(real-resource (amount much))"}},
        {"AxSimSector", {{"(sector-size 1.0)", "(sector-center 0.25)"}, "(sector-size wide)"}},
        {"AxRwTemplatedListPtr<AxRwAutoConnection, 1>",
         {{"(auto-connection (output \"a\") (input \"b\"))", "(auto-connection (output \"c\"))"},
          "(auto-connection (output (a b)))"}},
        {"AxRwMimeCharacterInfo", {{"(character \"guard\")", "(animation-set \"winter\")"}, "(character (a b))"}},
        {"AxRwTemplatedListPtr<AxSlotExclusion, 1>",
         {{"(rear (slot-name \"left\"))", "(rear (slot-name \"right\"))"}, "(rear (slot-name (a b)))"}},
        {"AxSimMunition", {{"(munition-name \"sabot\")", "(warhead 1000)"}, "(warhead heavy)"}},
        {"AxFormation",
         {{"(extra-spacing 1.0 2.0 0.0)", "(positions (first (offset 1.0 0.0 0.0)))"}, "(extra-spacing 1.0)"}},
        {"AxTargetPriorityList",
         {{"(entity-priority (entity-type 1 1 225 1 1 3 0) (priority 2))", "(entity-priority (priority 1))"},
          "(entity-priority (priority first))"}},
        {"AxSoilList",
         {{"(soil-factors (soil-type \"mud\"))", "(soil-factors (max-speed-factor 0.5))"},
          "(soil-factors (max-speed-factor slow))"}},
    };
    return samples.at(kind);
}

/// Makes, reads and writes whatever the catalogue tells, with warnings and findings gathered.
class CatalogueTest : public testing::Test
{
protected:
    CatalogueTest()
        : mySink(AxDiagnostics::setSink([this](AxDiagnostic const& finding) { findings.push_back(finding); }))
    {
        AxComponentDescriptor::setFactory(&components);
        AxZedObjectParameters::setFactory(&records);
    }
    ~CatalogueTest() override
    {
        AxZedObjectParameters::setFactory(nullptr);
        AxComponentDescriptor::setFactory(nullptr);
        AxDiagnostics::setSink(mySink);
    }

    std::unique_ptr<AxReaderWriter> made(Type const& type)
    {
        std::unique_ptr<AxReaderWriter> result;
        if (isPart(type))
        {
            result.reset(AxReaderWriter::factory()->createItem(type.name, "one", nullptr));
        }
        else if (isRecord(type))
        {
            result.reset(records.createParameters(type.name, AxEnvironmentPtr(), nullptr));
        }
        else
        {
            result.reset(components.createComponentDescriptor(AxString(type.name)));
        }
        if (result)
        {
            result->setName("one");
        }
        return result;
    }

    static std::unique_ptr<AxReaderWriter> cloneOf(Type const& type, AxReaderWriter const& rw)
    {
        if (isPart(type))
        {
            return std::unique_ptr<AxReaderWriter>(
                AxReaderWriter::factory()->cloneReaderWriter(type.name, &rw, nullptr));
        }
        if (auto const* record = dynamic_cast<AxZedObjectParameters const*>(&rw))
        {
            return std::unique_ptr<AxReaderWriter>(record->clone(record->name(), nullptr));
        }
        return std::unique_ptr<AxReaderWriter>(dynamic_cast<AxComponentDescriptor const&>(rw).clone(nullptr));
    }

    std::unique_ptr<AxReaderWriter> readFrom(Type const& type, std::string const& text)
    {
        std::unique_ptr<AxReaderWriter> result = made(type);
        if (result)
        {
            result->readText(text, AxFilename("test.ope"), AxReaderWriter::nullFilenames(),
                             AxReaderWriter::nullVariableReference());
        }
        return result;
    }

    /// Calls `test` with each type that can be made, an object read from a text without items, and that text's start.
    template <class Test>
    void forEachType(Test const& test)
    {
        for (Type const& type : catalogue())
        {
            if (type.name.starts_with('('))
            {
                continue;
            }
            SCOPED_TRACE(type.name);
            std::unique_ptr<AxReaderWriter> const fresh = readFrom(type, headOf(type) + ")");
            ASSERT_TRUE(fresh);
            test(type, *fresh, headOf(type));
        }
    }

    /// Calls `test` with each keyword of each type, and the item that gives it a value that is not its default.
    template <class Test>
    void forEachKeyword(Test const& test)
    {
        forEachType(
            [&](Type const& type, AxReaderWriter& fresh, std::string const& head)
            {
                for (Keyword const& keyword : keywordsOf(type))
                {
                    SCOPED_TRACE(keyword.text);
                    if (keyword.text != "-")
                    {
                        test(type, keyword, fresh, head);
                    }
                }
            });
    }

    static std::string headOf(Type const& type)
    {
        if (isPart(type))
        {
            return "(one\n";
        }
        return std::string(isRecord(type) ? "(one (parameter-type \"" : "(one (component-descriptor-type \"") +
               type.name + "\")\n";
    }

    static std::string item(Keyword const& keyword, std::string const& value)
    {
        return "(" + keyword.text + " " + value + ")\n";
    }

    /// The item that changes `keyword` from its default.
    std::string changingItem(Type const& type, Keyword const& keyword, AxReaderWriter const& fresh)
    {
        for (std::string const& value : sampleOf(keyword.kind).values)
        {
            std::string const text = item(keyword, value);
            if (*readFrom(type, headOf(type) + text + ")") != fresh)
            {
                return text;
            }
        }
        ADD_FAILURE() << "no sample changes the member";
        return {};
    }

    AxDefaultComponentDescriptorFactory components;
    AxDefaultParameterFactory records;
    AxSinkScope warnings{AxWarn};
    std::vector<AxDiagnostic> findings;

private:
    AxDiagnostics::Sink mySink;
};

std::string withoutBlanks(std::string text)
{
    std::erase_if(text, [](char letter) { return letter == ' ' || letter == '\n'; });
    return text;
}

AxReaderWriter& memberOf(AxReaderWriter& rw, Keyword const& keyword)
{
    return *rw.registry()->lookup(AxSymbolString(keyword.text.c_str()));
}
} // namespace

TEST_F(CatalogueTest, KeywordsStandInOrderAndHaveTheirKinds)
{
    forEachType(
        [](Type const& type, AxReaderWriter& fresh, std::string const&)
        {
            std::vector<Keyword> const keywords = keywordsOf(type);
            AxReaderWriterRegistry const& registry = *fresh.registry();
            std::size_t at = 0;
            for (std::size_t i = 0; i < registry.size(); ++i)
            {
                AxRegistryEntry const entry = registry.entry(i);
                if (entry.content)
                {
                    continue;
                }
                if (entry.keyword == AxSymbolString("user-extension"))
                {
                    break; // made when a record is read
                }
                ASSERT_LT(at, keywords.size()) << entry.keyword.string();
                AxReaderWriter const& member = *entry.member;
                EXPECT_EQ(entry.keyword.isNull() ? "-" : entry.keyword.string(), keywords[at].text);
                EXPECT_EQ(boost::core::demangle(typeid(member).name()), classOf(keywords[at].kind))
                    << keywords[at].text;
                ++at;
            }
            EXPECT_EQ(at, keywords.size());
        });
}

TEST_F(CatalogueTest, EveryKeywordTellsWhatItIs)
{
    forEachKeyword(
        [](Type const&, Keyword const& keyword, AxReaderWriter& fresh, std::string const&)
        {
            AxKeyword const* description = memberOf(fresh, keyword).description();
            ASSERT_NE(description, nullptr);
            EXPECT_GT(std::string_view(description->help).size(), 12U);
            EXPECT_TRUE(std::string_view(description->help).ends_with('.'));
            EXPECT_LE(description->range.low, description->range.high);
        });
}

TEST_F(CatalogueTest, FreshObjectsCloneAndSurviveTheirFullText)
{
    forEachType(
        [this](Type const& type, AxReaderWriter& fresh, std::string const&)
        {
            std::unique_ptr<AxReaderWriter> const clone = cloneOf(type, fresh);
            EXPECT_EQ(*clone, fresh);
            EXPECT_EQ(clone->writtenText(), fresh.writtenText());
            std::unique_ptr<AxReaderWriter> const again = readFrom(type, fresh.writtenText(true));
            EXPECT_EQ(*again, fresh);
            EXPECT_EQ(again->writtenText(true), fresh.writtenText(true));
        });
    EXPECT_TRUE(findings.empty()) << findings.front().text;
}

TEST_F(CatalogueTest, EveryKeywordSurvivesReadCloneAndWrite)
{
    forEachKeyword(
        [this](Type const& type, Keyword const& keyword, AxReaderWriter& fresh, std::string const& head)
        {
            std::string const text = head + changingItem(type, keyword, fresh) + ")";
            std::unique_ptr<AxReaderWriter> const read = readFrom(type, text);
            EXPECT_TRUE(memberOf(*read, keyword).isDue());
            EXPECT_NE(*read, fresh);
            std::unique_ptr<AxReaderWriter> const clone = cloneOf(type, *read);
            EXPECT_EQ(*clone, *read);
            EXPECT_EQ(clone->writtenText(), read->writtenText());
            std::unique_ptr<AxReaderWriter> const again = readFrom(type, read->writtenText());
            EXPECT_EQ(*again, *read);
            EXPECT_EQ(again->writtenText(), read->writtenText());
        });
}

TEST_F(CatalogueTest, UnknownItemsHarmNoNeighbourAndAreKept)
{
    forEachType(
        [this](Type const& type, AxReaderWriter& fresh, std::string const& head)
        {
            std::string text = head;
            std::vector<Keyword> keywords = keywordsOf(type);
            // A file takes the place of the content that follows it.
            std::erase_if(keywords, [](Keyword const& keyword)
                          { return keyword.text == "-" || keyword.kind == "AxReaderWriterFile"; });
            for (Keyword const& keyword : keywords)
            {
                text += "(no-such-keyword " + keyword.text + ")" + changingItem(type, keyword, fresh);
            }
            findings.clear();
            std::unique_ptr<AxReaderWriter> const read = readFrom(type, text + ")");
            EXPECT_EQ(std::ranges::count(findings, "unknown-keyword", &AxDiagnostic::code),
                      static_cast<std::ptrdiff_t>(keywords.size()));
            if (auto const* component = dynamic_cast<AxComponentDescriptor const*>(read.get()))
            {
                auto const told = std::ranges::find(findings, "unknown-keyword", &AxDiagnostic::code);
                EXPECT_EQ(told->text,
                          "unknown keyword \"no-such-keyword\" in one (" + component->type().string() + ")");
            }
            std::string const written = read->writtenText();
            for (Keyword const& keyword : keywords)
            {
                EXPECT_TRUE(memberOf(*read, keyword).isDue()) << keyword.text;
                EXPECT_NE(written.find("(no-such-keyword " + keyword.text + ")"), std::string::npos) << keyword.text;
            }
            std::unique_ptr<AxReaderWriter> const again = readFrom(type, written);
            EXPECT_EQ(*again, *read);
            EXPECT_EQ(again->writtenText(), written);
        });
}

TEST_F(CatalogueTest, AValueOfTheWrongKindIsOneLineLeavesTheOldOneAndHarmsNoNeighbour)
{
    forEachKeyword(
        [this](Type const& type, Keyword const& keyword, AxReaderWriter& fresh, std::string const& head)
        {
            std::string const& wrong = sampleOf(keyword.kind).wrong;
            Keyword const before{
                isRecord(type) ? (keyword.text == "mass" ? "under-fire-time" : "mass")
                               : (keyword.text == "min-tick-period" ? "min-tick-period-variance" : "min-tick-period"),
                "AxRwReal"};
            Keyword const after{isRecord(type) ? (keyword.text == "category" ? "display-name" : "category")
                                               : (keyword.text == "component-type" ? "process-state-repository-name"
                                                                                   : "component-type"),
                                "AxRwString"};
            std::string const front = isPart(type) ? ";\n" : item(before, "12.5");
            std::string const back = isPart(type) ? ";\n" : item(after, "\"word\"");
            // Files and extensions are looked for as soon as they are named.
            bool const hasOld =
                keyword.kind != "AxReaderWriterFile" && keyword.text != "state-repository-extension-type";
            std::string const old = hasOld ? changingItem(type, keyword, fresh) : ";\n";
            std::unique_ptr<AxReaderWriter> const valid = readFrom(type, head + old + ")");
            findings.clear();
            std::unique_ptr<AxReaderWriter> const read =
                readFrom(type, head + front + old + item(keyword, wrong) + back + ")");
            ASSERT_EQ(findings.size(), hasOld ? 2U : 1U);
            EXPECT_EQ(findings[0].code == "repeated-keyword", hasOld);
            EXPECT_EQ(findings.back().line, 4U);
            EXPECT_GT(findings.back().column, 1U);
            if (!isPart(type))
            {
                EXPECT_EQ(memberOf(*read, before).writtenText(true), front);
                EXPECT_EQ(memberOf(*read, after).writtenText(true), back);
            }
            if (findings.back().text.starts_with('"' + keyword.text + "\" expects"))
            {
                EXPECT_EQ(memberOf(*read, keyword).writtenText(true), memberOf(*valid, keyword).writtenText(true));
            }
            EXPECT_NE(withoutBlanks(read->writtenText()).find(withoutBlanks(wrong)), std::string::npos)
                << "the item is lost";
        });
}
