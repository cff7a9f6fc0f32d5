#include "DatabaseFixture.h"

#include "AxRwVariableBindings.h"
#include "AxSxpParameterDbFileData.h"

#include <sys/stat.h>

namespace
{
class AxSxpParameterDbEntryTest : public DatabaseFixture
{
protected:
    /// Every "DIR" of a text stands for the directory of this test.
    std::string placed(std::string text) const
    {
        for (std::size_t at = text.find("DIR"); at != std::string::npos; at = text.find("DIR"))
        {
            text.replace(at, 3, directory());
        }
        return text;
    }

    AxSxpParameterDbEntry entry;
};
} // namespace

TEST_F(AxSxpParameterDbEntryTest, SaysWhatIsWrongWithAFileAndKeepsWhatCanBeKept)
{
    struct Case
    {
        char const* what;
        std::string text;
        char const* warnings;
        bool isKept;
    };
    std::string const type = "(parameter-type \"zed-object-param\")";
    Case const cases[] = {
        {"whole", "(m1 " + type + " (mass 2.0))", "", true},
        {"empty", "", "DIR/m1.ope:1:1: error: expected a record, found an empty file [empty-file]\n", false},
        {"blank", " \n; nothing here\n", "DIR/m1.ope:1:1: error: expected a record, found an empty file [empty-file]\n",
         false},
        {"open list", "(m1 " + type + "\n (mass 2.0)\n (category \"tank\"", "Parameters are invalid for m1.ope\n",
         true},
        {"open string", "(m1 " + type + "\n (mass 2.0) (category \"tan", "Parameters are invalid for m1.ope\n", true},
        {"open string between", "(m1 " + type + " \"mass", "Parameters are invalid for m1.ope\n", true},
        {"open type", "(m1 (parameter-type \"zed-obj", nullptr, false},
        {"no type item", "(m1\n (mass 2.0))",
         "DIR/m1.ope:2:2: error: expected (parameter-type ...) [no-parameter-type]\n", false},
        {"nothing in it", "(m1)", "DIR/m1.ope:1:1: error: expected (parameter-type ...) [no-parameter-type]\n", false},
        {"no list", "m1", "DIR/m1.ope:1:1: error: expected (parameter-type ...) [no-parameter-type]\n", false},
        {"text behind", "(m1 " + type + ") more",
         "DIR/m1.ope:1:42: warning: the text behind the record is not read [text-follows]\n", true},
        {"unreadable value", "(m1 " + type + "\n (mass heavy))", nullptr, true},
        {"bad character", "(m1 " + type + " (mass 2.0) \x01 )", nullptr, false},
        {"unknown type", "(m1 (parameter-type \"zed-objekt-param\"))", nullptr, false},
    };
    entry.setObjectType(tank);
    for (Case const& row : cases)
    {
        AxSxpParameterDbEntry made;
        made.setFilename("m1.ope");
        made.setDatabaseDirectory(directory());
        put("m1.ope", row.text);
        AxZedObjectParameters* const got = made.load();
        EXPECT_EQ(got != nullptr, row.isKept) << row.what;
        EXPECT_EQ(made.parameters(), got) << row.what;
        std::string const said = warned();
        if (row.warnings)
        {
            EXPECT_EQ(said, placed(row.warnings)) << row.what;
        }
        else
        {
            EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << row.what << ": " << said;
        }
    }
}

TEST_F(AxSxpParameterDbEntryTest, ATextCutOffAnywhereIsOneFinding)
{
    std::string const whole = "(m1\n (parameter-type \"moving-object-param\")\n (mass 2.0) (unknown (a b) 7)\n"
                              " (sensors (eye (component-descriptor-type \"object-sensor-descriptor\")\n"
                              "  (is-enabled true) (min-tick-period 0.5)))\n (category \"tank\") (max-speed 3))";
    for (std::size_t length = 1; length <= whole.size(); ++length)
    {
        findings.clear();
        put("m1.ope", whole.substr(0, length));
        AxSxpParameterDbEntry made;
        made.setFilename(path("m1.ope"));
        made.load();
        std::erase_if(findings, [](AxDiagnostic const& finding)
                      { return finding.text.starts_with("unknown keyword \"unknown\""); });
        std::string codes;
        for (AxDiagnostic const& finding : findings)
        {
            codes += finding.format() + '\n';
        }
        EXPECT_EQ(findings.size(), length < whole.size() ? 1U : 0U) << whole.substr(0, length) << '\n' << codes;
    }
}

TEST_F(AxSxpParameterDbEntryTest, WhatIsWrongWithTheFileIsSaidWhereItIsNamed)
{
    for (char const* file : {"missing.ope", "force.entity"})
    {
        findings.clear();
        put("force.opd",
            "(parameter-database (version 101)\n (parameter-files\n  " + DatabaseFixture::entry(theTank, file) + "))");
        ASSERT_TRUE(db.loadAll(AxFilename(path("force.opd"))));
        ASSERT_EQ(findings.size(), 1U);
        EXPECT_EQ(findings[0].file, path("force.opd"));
        EXPECT_EQ(findings[0].line, 3U);
        EXPECT_EQ(findings[0].column, 3U);
        EXPECT_NE(findings[0].text.find('"' + std::string(file) + '"'), std::string::npos) << findings[0].text;
    }
}

TEST_F(AxSxpParameterDbEntryTest, StatesThatAnUnknownTypeHasNoCreator)
{
    put("m1.ope", record("", "zed-objekt-param"));
    entry.setFilename(path("m1.ope"));
    EXPECT_EQ(entry.load(), nullptr);
    EXPECT_NE(warned().find("zed-objekt-param"), std::string::npos);
    ASSERT_FALSE(findings.empty());
    EXPECT_NE(findings.back().hint.find("zed-object-param"), std::string::npos);
}

TEST_F(AxSxpParameterDbEntryTest, OnlyRegularFilesAreRecords)
{
    struct Case
    {
        char const* file;
        char const* warning;
    };
    boost::filesystem::create_directories(path("directory.ope"));
    ASSERT_EQ(::mkfifo(path("pipe.ope").c_str(), 0600), 0);
    Case const cases[] = {
        {"missing.ope", "Could not open parameter file missing.ope: No such file or directory\n"},
        {"directory.ope", "Could not open parameter file directory.ope: Is a directory\n"},
        {".\\no\\missing.ope", "Could not open parameter file .\\no\\missing.ope: No such file or directory\n"},
    };
    entry.setDatabaseDirectory(directory());
    for (Case const& row : cases)
    {
        entry.setFilename(row.file);
        EXPECT_EQ(entry.load(), nullptr);
        EXPECT_EQ(warned(), row.warning);
    }
    entry.setFilename("pipe.ope");
    EXPECT_EQ(entry.load(), nullptr);
    EXPECT_EQ(warned().rfind("Could not open parameter file pipe.ope: ", 0), 0U);
}

TEST_F(AxSxpParameterDbEntryTest, SearchesThePathsThenItsOwnThenTheDatabase)
{
    for (std::string const place : {"first", "second", "own", "database"})
    {
        put(place + "/m1.ope", record("(display-name \"" + place + "\")"));
    }
    AxSxpParameterDbEntry made;
    made.setFilename("m1.ope");
    made.setSearchPaths({path("first"), path("second")});
    made.setPath(path("own"));
    made.setDatabaseDirectory(path("database"));
    for (std::string const place : {"first", "second", "own", "database"})
    {
        EXPECT_EQ(made.foundFilename().native(), path(place + "/m1.ope"));
        boost::filesystem::remove(path(place + "/m1.ope"));
    }
    EXPECT_TRUE(made.foundFilename().isNull());
}

TEST_F(AxSxpParameterDbEntryTest, ReadingAgainKeepsTheRecordItself)
{
    entry.setFilename(put("m1.ope", record("(mass 2.0) (category \"old\")")));
    AxZedObjectParameters* const held = entry.load();
    ASSERT_TRUE(held);
    put("m1.ope", record("(mass 3.0)"));
    EXPECT_EQ(entry.load(), held);
    EXPECT_EQ(held->mass(), 3.0);
    EXPECT_EQ(held->category(), "");
    put("m1.ope", "");
    EXPECT_EQ(entry.load(), nullptr);
    EXPECT_EQ(entry.parameters(), held);
    EXPECT_EQ(held->mass(), 3.0);
}

TEST_F(AxSxpParameterDbEntryTest, ARecordThatIsReadAgainKeepsItsTypes)
{
    db.add(tanks, put("m1.ope", record("(mass 2.0)")), true, nullptr);
    AxZedObjectParameters const* const held = db.lookup(tank);
    ASSERT_TRUE(held);
    put("m1.ope", record("(mass 3.0)"));
    EXPECT_EQ(entryOf(db, tank)->load(), held);
    EXPECT_EQ(held->mass(), 3.0);
    EXPECT_EQ(held->objectType(), tanks);
    EXPECT_EQ(held->matchType(), tanks);
}

TEST_F(AxSxpParameterDbEntryTest, ReadingAnotherTypeIsRefused)
{
    entry.setFilename(put("m1.ope", record("(mass 2.0)")));
    AxZedObjectParameters* const held = entry.load();
    put("m1.ope", record("(mass 3.0)", "moving-object-param"));
    EXPECT_EQ(entry.load(), nullptr);
    EXPECT_EQ(warned(), "Cannot load different parameter moving-object-param type from file into existing type "
                        "zed-object-param\n");
    EXPECT_EQ(entry.parameters(), held);
    EXPECT_EQ(held->mass(), 2.0);
}

TEST_F(AxSxpParameterDbEntryTest, WithoutAFactoryNothingIsMade)
{
    entry.setFilename(put("m1.ope", record("")));
    AxZedObjectParameters::setFactory(nullptr);
    EXPECT_EQ(entry.load(), nullptr);
    EXPECT_NE(warned(), "");
}

TEST_F(AxSxpParameterDbEntryTest, IsKnownByItsFileAndStartsEmpty)
{
    EXPECT_EQ(entry.parameters(), nullptr);
    EXPECT_EQ(entry.version(), 101);
    EXPECT_FALSE(entry.temporary());
    entry.setFilename(".\\tanks\\m1.ope");
    EXPECT_EQ(entry.uniqueIdentifier(), ".\\tanks\\m1.ope");
}

TEST(AxSxpParameterDbFileData, WritesEachVariableSetOnceWhateverCanBeReadOfIt)
{
    for (char const* text : {"(\"a db\" (version 101) (variable-bindings stray))",
                             "(\"a db\" (variable-bindings stray) (variable-bindings (a 1)))",
                             "(db (variable-bindings stray) (version 101))",
                             "((variable-bindings (a 1)) (version 101) (variable-bindings))"})
    {
        AxSinkScope const quiet(AxWarn);
        AxSxpParameterDbFileData data("", nullptr);
        data.readText(text, AxFilename("x.opd"), {}, {});
        std::string const written = data.writtenText();
        EXPECT_EQ(written.find("(variable-bindings"), written.rfind("(variable-bindings")) << written;
        AxSxpParameterDbFileData again("", nullptr);
        again.readText(written, AxFilename("x.opd"), {}, {});
        EXPECT_EQ(again.writtenText(), written) << text;
    }
}
