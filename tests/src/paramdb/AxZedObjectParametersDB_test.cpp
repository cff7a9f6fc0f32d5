#include "AxZedObjectParametersDB.h"

#include "AxZedObjectParametersList.h"
#include "DatabaseFixture.h"

namespace
{
class AxZedObjectParametersDBTest : public DatabaseFixture
{
protected:
    AxZedObjectParametersDBTest() { collection.init(); }

    static std::string element(std::string const& type, std::string const& items = "",
                               std::string const& head = "individual-entity-parameters")
    {
        return "(" + head + " (parameter-type \"zed-object-param\") (object-type " + type + ") " + items + ")\n";
    }
    bool read(std::string const& elements)
    {
        return collection.readParameterFile(
            put("all.params", "(parameter-list (sim-object-parameters\n" + elements + "))").string());
    }
    AxZedObjectParameters* at(char const* type) const { return collection.lookupParameters(typeOf(type), nullptr); }

    AxZedObjectParametersDB collection{"parameter-list", nullptr};
};
} // namespace

TEST_F(AxZedObjectParametersDBTest, ARecordWithoutSuperTypeGetsThatOfItsElement)
{
    struct Case
    {
        char const* head;
        char const* type;
        char const* stored;
    };
    Case const cases[] = {
        {"individual-entity-parameters", "1 1 225 1 1 3 0", "1:1:1:225:1:1:3:0"},
        {"pseudo-aggregate-entity-parameters", "1 1 225 1 1 3 0", "3:1:1:225:1:1:3:0"},
        {"true-aggregate-entity-parameters", "1 1 225 1 1 3 0", "4:1:1:225:1:1:3:0"},
        {"individual-entity-parameters", "2 1 1 225 1 1 3 0", "2:1:1:225:1:1:3:0"},
    };
    for (Case const& row : cases)
    {
        collection.removeAndDeleteAll();
        ASSERT_TRUE(read(element(row.type, "", row.head)));
        ASSERT_EQ(collection.parametersList()->count(), 1) << row.head;
        AxObjectType matched;
        EXPECT_TRUE(collection.lookupParameters(typeOf(row.stored), &matched)) << row.head;
        EXPECT_EQ(matched, typeOf(row.stored));
    }
    EXPECT_EQ(warned(), "");
}

TEST_F(AxZedObjectParametersDBTest, TheNearestMoreGeneralRecordGivesWhatIsNotSpecified)
{
    ASSERT_TRUE(read(element("1 1 225 1 1 3 0", "(display-name \"tank\")") +
                     element("1 1 -1 -1 -1 -1 -1", "(mass 1.0) (category \"vehicle\")") +
                     element("1 1 225 -1 -1 -1 -1", "(mass 2.0)") + element("1 2 225 1 1 3 0")));
    AxZedObjectParameters const* const found = at("1:1:1:225:1:1:3:0");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->displayName(), "tank");
    EXPECT_EQ(found->mass(), 2.0);
    EXPECT_EQ(found->category(), "vehicle");
    EXPECT_EQ(at("1:1:2:225:1:1:3:0")->category(), "");
    EXPECT_EQ(warned(), "");
}

TEST_F(AxZedObjectParametersDBTest, TheCatchAllGivesToEveryLaterRecord)
{
    ASSERT_TRUE(read(element("-2 0 0 0 0 0 0 0", "(mass 7.0)") + element("1 2 225 1 1 3 0") +
                     element("1 1 225 1 1 3 0", "(mass 8.0)")));
    EXPECT_EQ(at("1:1:2:225:1:1:3:0")->mass(), 7.0);
    EXPECT_EQ(at("1:1:1:225:1:1:3:0")->mass(), 8.0);
}

TEST_F(AxZedObjectParametersDBTest, AnEqualTypeReplacesAndSaysSo)
{
    ASSERT_TRUE(read(element("1 1 225 1 1 3 0", "(mass 1.0)") + element("1 1 225 1 1 3 0", "(mass 2.0)")));
    EXPECT_EQ(warned(), "Removing entry for type 1:1:1:225:1:1:3:0\n");
    EXPECT_EQ(collection.parametersList()->count(), 1);
    EXPECT_EQ(at("1:1:1:225:1:1:3:0")->mass(), 2.0);
}

TEST_F(AxZedObjectParametersDBTest, RemovesOnlyTheExactTypeAndAlwaysSaysSo)
{
    ASSERT_TRUE(read(element("1 1 225 -1 -1 -1 -1")));
    collection.removeParameters(typeOf("1:1:1:225:1:1:3:0"));
    EXPECT_EQ(warned(), "Removing entry for type 1:1:1:225:1:1:3:0\n");
    EXPECT_EQ(collection.parametersList()->count(), 1);
    collection.removeParameters(typeOf("1:1:1:225:-1:-1:-1:-1"));
    EXPECT_EQ(warned(), "Removing entry for type 1:1:1:225:-1:-1:-1:-1\n");
    EXPECT_EQ(collection.parametersList()->count(), 0);
    collection.addParameters(nullptr);
    EXPECT_EQ(collection.parametersList()->count(), 0);
}

TEST_F(AxZedObjectParametersDBTest, AFileThatCannotBeOpenedIsSaidOnTheVerboseStreamOnly)
{
    AxSinkScope verbose(AxVerbose);
    news.clear();
    EXPECT_FALSE(collection.readParameterFile(path("none.params")));
    EXPECT_EQ(verbose.text(), "Could not open parameter file " + path("none.params") + " for reading\n");
    EXPECT_EQ(warned(), "");
    EXPECT_EQ(news.text(), "");
}

TEST_F(AxZedObjectParametersDBTest, ATextThatCannotBeParsedIsStated)
{
    EXPECT_FALSE(collection.readParameterFile(put("bad.params", "(parameter-list\n (sim-object-parameters").string()));
    EXPECT_EQ(warned(), "Error parsing " + path("bad.params") + '\n');
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().line, 2U);
    EXPECT_TRUE(collection.readParameterFile(put("empty.params", "").string()));
}

TEST_F(AxZedObjectParametersDBTest, ElementsThatCannotBeCreatedAreSaidAndKept)
{
    ASSERT_TRUE(read("(individual-entity-parameters (parameter-type \"no-such-param\") (object-type 1 1 1 1 1 1 1))\n"
                     "(tank-parameters (mass 1.0))\n" +
                     element("1 1 225 1 1 3 0")));
    EXPECT_EQ(collection.parametersList()->count(), 1);
    EXPECT_TRUE(warned().find("could not create entity parameters\n") != std::string::npos);
    ASSERT_TRUE(collection.writeParameterFile(path("out.params")));
    std::string const text = get("out.params");
    EXPECT_NE(text.find("no-such-param"), std::string::npos) << text;
    EXPECT_NE(text.find("(tank-parameters (mass 1.0))"), std::string::npos) << text;
}

TEST_F(AxZedObjectParametersDBTest, WhatIsWrittenReadsBackEqual)
{
    ASSERT_TRUE(
        read(element("1 1 225 1 1 3 0", "(record-name \"m1\") (mass 2.5)") +
             element("1 1 225 -1 -1 -1 -1", "(category \"a \\\"b\\\" (c)\")", "true-aggregate-entity-parameters") +
             element("3 1 1 225 1 1 3 0")));
    ASSERT_TRUE(collection.writeParameterFile(path("out.params")));
    AxZedObjectParametersDB again("parameter-list", nullptr);
    again.init();
    ASSERT_TRUE(again.readParameterFile(path("out.params")));
    EXPECT_TRUE(again.parametersList()->equals(*collection.parametersList())) << get("out.params");
    AxZedObjectParameters const* const m1 = again.lookupParameters(typeOf("1:1:1:225:1:1:3:0"), nullptr);
    ASSERT_TRUE(m1);
    EXPECT_EQ(m1->AxReaderWriter::name().string(), "m1");
    ASSERT_TRUE(again.writeParameterFile(path("again.params")));
    EXPECT_EQ(get("again.params"), get("out.params"));
    EXPECT_EQ(warned(), "");
}

TEST_F(AxZedObjectParametersDBTest, AFileThatCannotBeWrittenIsStated)
{
    boost::filesystem::create_directories(path("out.params"));
    EXPECT_FALSE(collection.writeParameterFile(path("out.params")));
    EXPECT_EQ(warned(), "Could not open parameter file " + path("out.params") + " for writing\n");
}
