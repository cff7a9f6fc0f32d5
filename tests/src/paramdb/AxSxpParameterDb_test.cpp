#include "DatabaseFixture.h"

#include "AxRemoteConfigurationList.h"
#include "AxRwVariableBindings.h"
#include "AxSxpParameterDbFileData.h"
#include "AxZedObjectParametersList.h"

#include <algorithm>

namespace
{
/// The protected steps, for calling them alone.
struct Steps : AxSxpParameterDb
{
    using AxSxpParameterDb::addParameterDbEntry;
    using AxSxpParameterDb::copyDependentParameterDirectories;
    using AxSxpParameterDb::getParameters;
    using AxSxpParameterDb::getPath;
};
struct ReaderSteps : AxSxpParameterDbReader
{
    using AxSxpParameterDbReader::load;
    using AxSxpParameterDbReader::putFileDataInParameterDb;
    using AxSxpParameterDbReader::setFilenamePathsRelativeToFile;
};

class AxSxpParameterDbTest : public DatabaseFixture
{
protected:
    /// A database file with the entries; loads it.
    void load(std::string const& entries, std::string const& head = "(version 101)")
    {
        ASSERT_TRUE(db.load(put("force.opd", database(entries, head))));
    }
    void loadTank(std::string const& items = "(mass 2.0)")
    {
        put("m1.ope", record(items));
        load(entry(theTank, "m1.ope"));
    }
    /// Each record as text, under its type.
    static std::string allText(AxSxpParameterDb& owner)
    {
        std::string text;
        for (AxListItem const* item = owner.parameterList().first(); item; item = item->next())
        {
            auto* const entry = static_cast<AxZedParameterDbEntry*>(item->data());
            text += entry->objectType().string().string() + '\n';
            if (entry->parameters())
            {
                entry->parameters()->putSelf(text, 0, true, AxFilename());
            }
            text += '\n';
        }
        return text;
    }
};
} // namespace

TEST_F(AxSxpParameterDbTest, ReadsARecordOnceWhenItsTypeIsFirstLookedUp)
{
    loadTank();
    EXPECT_EQ(entryOf(db, tank)->parameters(), nullptr);
    AxString info;
    AxZedObjectParameters* const first = db.lookup(tank, nullptr, &info);
    ASSERT_TRUE(first);
    EXPECT_EQ(info, "m1.ope");
    put("m1.ope", record("(mass 3.0)"));
    EXPECT_EQ(db.lookup(tank), first);
    EXPECT_EQ(first->mass(), 2.0);
    EXPECT_EQ(warned(), "");
}

TEST_F(AxSxpParameterDbTest, AMissingFileIsSaidAndTriedAtEachLookup)
{
    load(entry(theTank, "m1.ope"));
    for (int i = 0; i < 2; ++i)
    {
        AxObjectType matched;
        AxString info;
        EXPECT_EQ(db.lookup(tank, &matched, &info), nullptr);
        EXPECT_EQ(matched, tank);
        EXPECT_EQ(info, "m1.ope");
        EXPECT_EQ(warned(), "Could not open parameter file m1.ope: No such file or directory\n");
    }
    put("m1.ope", record(""));
    EXPECT_TRUE(db.lookup(tank));
    EXPECT_EQ(warned(), "");
}

TEST_F(AxSxpParameterDbTest, TheRecordOfAPatternCarriesThePattern)
{
    put("m1.ope", record(""));
    load(entry(theTanks, "m1.ope"));
    AxObjectType matched;
    AxZedObjectParameters* const found = db.lookup(tank, &matched);
    ASSERT_TRUE(found);
    EXPECT_EQ(matched, tanks);
    EXPECT_EQ(found->objectType(), tanks);
    EXPECT_EQ(found->matchType(), tanks);
}

TEST_F(AxSxpParameterDbTest, ARecordPutInByHandIsNotGivenAType)
{
    AxObjectType matched = tanks;
    db.add(tank, "m1.ope", false, made("zed-object-param").release());
    ASSERT_TRUE(db.lookup(tank, &matched));
    EXPECT_TRUE(matched.isNull());
}

TEST_F(AxSxpParameterDbTest, TheVersionDecidesWhereNamesBegin)
{
    struct Case
    {
        char const* head;
        int version;
        bool isRelativeToApplication;
        char const* code;
    };
    Case const cases[] = {
        {"", 0, true, "no-version"},
        {"(version 0)", 0, true, ""},
        {"(version -3)", -3, true, ""},
        {"(version 99)", 99, true, ""},
        {"(version 100)", 100, false, ""},
        {"(version 101)", 101, false, ""},
        {"(version 102)", 102, false, "newer-version"},
    };
    for (Case const& row : cases)
    {
        findings.clear();
        load(entry(theTank, "m1.ope"), row.head);
        EXPECT_EQ(db.versionNumber(), row.version) << row.head;
        AxFilename const base = row.isRelativeToApplication ? AxReaderWriter::appPath() : AxFilename();
        EXPECT_EQ(entryOf(db, tank)->path(), base) << row.head;
        EXPECT_EQ(entryOf(db, tank)->version(), row.version) << row.head;
        EXPECT_EQ(findings.empty() ? "" : findings.back().code, row.code) << row.head;
        if (row.version == 0 && *row.head == '\0')
        {
            EXPECT_EQ(warned(), "Version not found, assuming pre-3.7 version parameter database file\n");
        }
    }
}

TEST_F(AxSxpParameterDbTest, TableNamesOfVersion100BecomeRelativeToTheRecord)
{
    struct Case
    {
        char const* version;
        char const* name;
        char const* result;
        char const* warnings;
    };
    Case const cases[] = {
        {"100", "m1.dmg", ".\\damage\\m1.dmg", ""},
        {"100", "tables/m1.hit", ".\\hit\\m1.hit", ""},
        {"100", "absent.dmg", "absent.dmg", ""},
        {"100", "m1.rules", ".\\m1.rules",
         "File extension rules does not match a known type\nFile m1.rules will be relative to the .ope file\n"},
        {"100", "m1.DMG", ".\\m1.DMG",
         "File extension DMG does not match a known type\nFile m1.DMG will be relative to the .ope file\n"},
        {"101", "m1.dmg", "m1.dmg", ""},
    };
    AxFilename const before = AxReaderWriter::appPath();
    AxReaderWriter::setAppPath(path("app"));
    for (char const* table : {"m1.dmg", "m1.DMG", "m1.rules", "tables/m1.hit"})
    {
        put(std::string("app/") + table, "(task-execution-rules)");
        put(table, "(task-execution-rules)");
    }
    put("absent.dmg", "(task-execution-rules)");
    for (Case const& row : cases)
    {
        put("m1.ope", record("(task-execution-rules \"" + std::string(row.name) + "\")"));
        load(entry(theTank, "m1.ope"), "(version " + std::string(row.version) + ")");
        AxZedObjectParameters* const found = db.lookup(tank);
        ASSERT_TRUE(found);
        EXPECT_EQ(found->taskExecutionRulesFilename().string(), row.result);
        EXPECT_EQ(warned(), row.warnings) << row.name;
    }
    EXPECT_NE(news.text().find("New AxReaderWriter filename set to .\\damage\\m1.dmg\n"), std::string::npos);
    AxReaderWriter::setAppPath(before);
}

TEST_F(AxSxpParameterDbTest, LoadAllReadsEveryRecordWhateverTheyGive)
{
    put("m1.ope", record("(mass 2.0)"));
    AxFilename const file = put("force.opd", database(entry(theTanks, "none.ope") + entry(theTank, "m1.ope")));
    EXPECT_TRUE(db.loadAll(file));
    EXPECT_TRUE(entryOf(db, tank)->parameters());
    EXPECT_EQ(warned(), "Could not open parameter file none.ope: No such file or directory\n");
    EXPECT_FALSE(db.loadAll(AxFilename(path("absent.opd"))));
}

TEST_F(AxSxpParameterDbTest, VariablesHoldInNamesAndInRecords)
{
    put("records/m1.ope", record("(mass $heavy) (display-name \"$(opd-dir)/m1\")"));
    put("near.ope", record("(mass 1.0)"));
    load(entry(theTank, "$(dir)/m1.ope") + entry(theTanks, "$(opd-dir)/near.ope"),
         "(variable-bindings (dir \"records\") (heavy 62000.0)) (version 101)");
    AxZedObjectParameters* const found = db.lookup(tank);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->mass(), 62000.0);
    EXPECT_EQ(found->displayName(), directory() + "/m1");
    EXPECT_EQ(entryOf(db, tanks)->filename().string(), directory() + "/near.ope");
    ASSERT_EQ(db.variableBindings().size(), 1U);
    EXPECT_EQ(entryOf(db, tank)->variableBindings(), db.variableBindings().front());
    EXPECT_EQ(warned(), "");
}

TEST_F(AxSxpParameterDbTest, SearchPathsComeFirst)
{
    put("m1.ope", record("(mass 1.0)"));
    put("new/m1.ope", record("(mass 2.0)"));
    db.setSearchPaths({path("none"), path("new")});
    load(entry(theTank, "m1.ope"));
    EXPECT_EQ(entryOf(db, tank)->searchPaths(), db.searchPaths());
    EXPECT_EQ(db.lookup(tank)->mass(), 2.0);
}

TEST_F(AxSxpParameterDbTest, AFileThatCannotBeReadChangesNothing)
{
    struct Case
    {
        char const* name;
        char const* text; // null: no such file
        std::string warnings;
    };
    std::string const before = "AxSxpParameterDbFileData::";
    std::string const cannot = "Can't determine version number in file ";
    Case const cases[] = {
        {"absent.opd", nullptr,
         before +
             "getVersionNumber() : Could not open parameter database file DIR/absent.opd: No such file or "
             "directory\n" +
             cannot + "DIR/absent.opd\n"},
        {"empty.opd", "", before + "isSxpParameterDbData() : empty parameter file\n" + cannot + "DIR/empty.opd\n"},
        {"blank.opd", " ; only this\n",
         before + "isSxpParameterDbData() : empty parameter file\n" + cannot + "DIR/blank.opd\n"},
        {"open.opd", "(parameter-database (parameter-files",
         "DIR/open.opd:1:21: error: the list is not closed, expected \")\" before the end of the text "
         "[unclosed-list]\n" +
             cannot + "DIR/open.opd\n"},
    };
    loadTank();
    for (Case const& row : cases)
    {
        if (row.text)
        {
            put(row.name, row.text);
        }
        EXPECT_FALSE(db.load(AxFilename(path(row.name))));
        std::string expected = row.warnings;
        for (std::size_t at = expected.find("DIR"); at != std::string::npos; at = expected.find("DIR"))
        {
            expected.replace(at, 3, directory());
        }
        EXPECT_EQ(warned(), expected) << row.name;
        EXPECT_EQ(db.numParameterEntries(), 1);
        EXPECT_EQ(db.variableBindings().size(), 1U);
        EXPECT_EQ(db.versionNumber(), 101);
    }
    EXPECT_EQ(news.text().rfind("Loading parameter database file " + path("force.opd") + " . . .\n", 0), 0U);
}

TEST_F(AxSxpParameterDbTest, WhatATruncatedFileHoldsCountsAndIsOneFinding)
{
    std::string const first = "(parameter-database (version 101) (parameter-files\n" + entry(theTank, "m1.ope");
    std::string const whole = first + entry(theTanks, "m2.ope") + ")(variable-bindings (a 1)))";
    for (std::size_t length = 1; length < whole.size(); ++length)
    {
        findings.clear();
        db.removeAll();
        bool const isLoaded = db.load(put("cut.opd", whole.substr(0, length)));
        ASSERT_EQ(findings.size(), 1U) << whole.substr(0, length);
        EXPECT_EQ(findings[0].severity, AxSeverity::Error);
        EXPECT_NE(findings[0].line, 0U);
        EXPECT_TRUE(!isLoaded || length < first.size() || db.numParameterEntries() >= 1) << whole.substr(0, length);
    }
}

TEST_F(AxSxpParameterDbTest, WhatStandsBeforeAFaultOfTheTextCounts)
{
    for (std::string const& fault : {std::string("\x01"), std::string(2000, '(')})
    {
        findings.clear();
        db.removeAll();
        EXPECT_TRUE(db.load(put("odd.opd", database(entry(theTank, "m1.ope") + fault + entry(theTanks, "m2.ope")))));
        EXPECT_EQ(findings.size(), 1U) << warned();
        EXPECT_EQ(db.numParameterEntries(), 1);
    }
}

TEST_F(AxSxpParameterDbTest, AnOddFileIsOneFinding)
{
    struct Case
    {
        std::string text;
        char const* code;
        unsigned column;
    };
    Case const cases[] = {
        {std::string(100, '\0'), "control-byte", 1},
        {"\x7f"
         "ELF\x02\x01",
         "control-byte", 1},
        {"hello world", "not-a-list", 1},
        {"\"text\"", "not-a-list", 1},
        {") (version 101)", "stray-parenthesis", 1},
        {"(parameter-database (version 1e999))", "number-range", 30},
        {"(parameter-database (version new))", "wrong-kind", 30},
        {"(parameter-database (version))", "wrong-kind", 21},
        {"(parameter-database (parameter-files))", "no-version", 1},
        {std::string(100000, '('), "nesting-limit", 1002},
        {database(entry("1 1", "m1.ope")), "wrong-kind", 31},
        {database("(parameter-entry (filename \"m1.ope\"))"), "unreadable-entry", 1},
    };
    for (Case const& row : cases)
    {
        findings.clear();
        db.load(put("odd.opd", row.text));
        ASSERT_EQ(findings.size(), 1U) << row.text.substr(0, 80) << '\n' << warned();
        EXPECT_EQ(findings[0].code, row.code) << findings[0].format();
        EXPECT_EQ(findings[0].column, row.column) << findings[0].format();
    }
}

TEST_F(AxSxpParameterDbTest, ASecondFileIsAddedToTheFirst)
{
    loadTank();
    db.lookup(tank);
    db.addDependentParameterFileToCopyPair("a", "b");
    EXPECT_TRUE(
        db.load(put("more.opd", database(entry(theTank, "other.ope") + entry(theTanks, "m1.ope"), "(version 50)"))));
    EXPECT_EQ(db.numParameterEntries(), 2);
    EXPECT_EQ(entryOf(db, tank)->filename().string(), "other.ope");
    EXPECT_EQ(entryOf(db, tank)->parameters(), nullptr);
    EXPECT_EQ(db.versionNumber(), 50);
    EXPECT_EQ(db.variableBindings().size(), 2U);
    EXPECT_TRUE(db.dependentParameterFileToCopyPairs().empty());
}

/// Most entries are read without an object of their own; others may stand between them.
TEST_F(AxSxpParameterDbTest, EntriesOfAnyShapeAreReadInTheirOrder)
{
    struct Case
    {
        char const* type;
        char const* odd;
        char const* filename;
    };
    for (Case const& each : {
             Case{theTank, "(parameter-entry ; the newest\n (object-type 1 1 1 225 1 1 3 0) (filename \"odd\"))",
                  "odd"},
             Case{theTank, "(parameter-entry (filename \"first\") (object-type 1 1 1 225 1 1 3 0))", "first"},
             Case{theTank, "(parameter-entry(object-type 1 1 1 225 1 1 3 0)(filename\"near\"))", "near"},
             Case{theTank, "(parameter-entry (object-type 1 1 1 225 1 1 3 0) (filename \"a\\\"b\"))", "a\"b"},
             Case{theTank, "(parameter-entry (object-type 1 1 1 225 1 1 3 0) (filename \"x\") (note 1))", "x"},
             Case{theTank, "(parameter-entry (object-type 1 1 1 225 1 1 3 0))", ""},
             Case{"0 1 1 225 1 1 3 0", "(parameter-entry (object-type 1 1 225 1 1 3 0) (filename \"seven\"))", "seven"},
             Case{theTank, "(parameter-entry (object-type 1 1 1 225 1 1 3) (filename \"moved\"))", "before"},
             Case{theTank, "(parameter-entry (object-type 1 1 1 225 1 1 3 x) (filename \"unread\"))", "before"},
         })
    {
        AxSxpParameterDb any;
        any.init();
        std::string const entries = entry(theTank, "older") + entry(each.type, "before") + each.odd + '\n';
        any.load(put("any.opd", database(entries + entry(theTanks, "behind"))));
        AxObjectType type;
        ASSERT_TRUE(AxObjectType::fromString(each.type, type));
        EXPECT_EQ(entryOf(any, type)->filename().string(), each.filename) << each.odd;
        EXPECT_EQ(entryOf(any, tanks)->filename().string(), "behind") << each.odd;
        any.load(put("any.opd", database(each.odd + entry(each.type, "last"))));
        EXPECT_EQ(entryOf(any, type)->filename().string(), "last") << each.odd;
    }
    warned();
}

TEST_F(AxSxpParameterDbTest, ASavedDatabaseReadsBackEqual)
{
    put("m1.ope", record("(mass 62000.0) (display-name \"a (b) \\\"c\\\"\") (max-speed 0.1)", "moving-object-param"));
    put("any.ope", "(any (parameter-type \"zed-object-param\") (mass 1.5))");
    put("force.opd", database(entry(theTank, "m1.ope") + entry(theTanks, "any.ope")));
    ASSERT_TRUE(db.loadAll(AxFilename(path("force.opd"))));
    boost::filesystem::create_directories(path("out"));
    ASSERT_TRUE(db.save(AxFilename(path("out/x.opd"))));
    EXPECT_EQ(files("out"), "x.opd x/any_1_1_1_225_1_1_-1_-1.ope x/m1_1_1_1_225_1_1_3_0.ope");
    EXPECT_EQ(entryOf(db, tank)->filename().string(), ".\\x\\m1_1_1_1_225_1_1_3_0.ope");
    EXPECT_NE(get("out/x.opd").find("\".\\\\x\\\\m1_1_1_1_225_1_1_3_0.ope\""), std::string::npos) << get("out/x.opd");

    AxSxpParameterDb again;
    again.init();
    ASSERT_TRUE(again.loadAll(AxFilename(path("out/x.opd"))));
    EXPECT_EQ(allText(again), allText(db));
    EXPECT_EQ(*again.lookup(tank), *db.lookup(tank));

    std::string const first = get("out/x.opd") + get("out/x/m1_1_1_1_225_1_1_3_0.ope");
    ASSERT_TRUE(again.save(AxFilename(path("out/x.opd"))));
    EXPECT_EQ(get("out/x.opd") + get("out/x/m1_1_1_1_225_1_1_3_0.ope"), first);
    EXPECT_EQ(files("out"), "x.opd x/any_1_1_1_225_1_1_-1_-1.ope x/m1_1_1_1_225_1_1_3_0.ope");
}

TEST_F(AxSxpParameterDbTest, ASaveIsOfVersion101AndTellsItsSteps)
{
    put("m1.ope", record(""));
    load(entry(theTank, "m1.ope"), "");
    db.lookup(tank);
    news.clear();
    ASSERT_TRUE(db.save(AxFilename(path("x.opd"))));
    EXPECT_EQ(news.text(), "Creating parameter file directory " + path("x") + "\nWriting parameter file " +
                               path("x/m1_1_1_1_225_1_1_3_0.ope") + "\nWriting parameter database file " +
                               path("x.opd") + '\n');
    EXPECT_EQ(db.versionNumber(), 101);
    EXPECT_NE(get("x.opd").find("(version 101)"), std::string::npos);
}

TEST_F(AxSxpParameterDbTest, EntriesWithoutARecordKeepTheirNameAndTemporaryOnesAreLeftOut)
{
    put("m1.ope", record(""));
    load(entry(theTank, "$(opd-dir)/m1.ope") + entry(theTanks, "any.ope"));
    db.add(typeOf("1:2:3:4:5:6:7:8"), "t.ope", false, made("zed-object-param").release())->setTemporary(true);
    put("any.ope", record(""));
    ASSERT_TRUE(db.save(AxFilename(path("force.opd"))));
    EXPECT_EQ(files(), "any.ope force.opd m1.ope");
    std::string const text = get("force.opd");
    EXPECT_NE(text.find("\"$(opd-dir)/m1.ope\""), std::string::npos) << text;
    EXPECT_NE(text.find("\"any.ope\""), std::string::npos);
    EXPECT_EQ(text.find("t.ope"), std::string::npos);
    EXPECT_EQ(warned(), "");
}

TEST_F(AxSxpParameterDbTest, ADanglingNameIsSaidOnceForEachEntry)
{
    loadTank();
    boost::filesystem::create_directories(path("out"));
    ASSERT_TRUE(db.save(AxFilename(path("out/x.opd"))));
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().code, "dangling-name");
    EXPECT_EQ(db.addUnloadedFilesToCopyPairs(AxFilename(path("out"))), 1);
    ASSERT_TRUE(db.save(AxFilename(path("out/x.opd"))));
    EXPECT_EQ(findings.size(), 1U);
    EXPECT_EQ(get("out/m1.ope"), get("m1.ope"));
}

TEST_F(AxSxpParameterDbTest, ANameFoundAlongTheSearchPathsDoesNotDangle)
{
    put("library/m1.ope", record(""));
    db.setSearchPaths({path("library")});
    load(entry(theTank, "m1.ope"));
    ASSERT_TRUE(db.save(AxFilename(path("out/x.opd"))));
    EXPECT_EQ(warned(), "");
}

TEST_F(AxSxpParameterDbTest, AnOlderEntryThatWasNotLoadedIsSaid)
{
    put("m1.ope", record(""));
    load(entry(theTank, "m1.ope"), "(version 100)");
    ASSERT_TRUE(db.save(AxFilename(path("force.opd"))));
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().code, "older-version");
}

TEST_F(AxSxpParameterDbTest, ReferencesAreWrittenOutWhereTheyWouldGiveAnotherName)
{
    put("m1.ope", record(""));
    load(entry(theTank, "$(opd-dir)/m1.ope") + entry(theTanks, "$(dir)/any.ope"),
         "(variable-bindings (dir \"/no/where\")) (version 101)");
    boost::filesystem::create_directories(path("out"));
    ASSERT_TRUE(db.save(AxFilename(path("out/x.opd"))));
    std::string const text = get("out/x.opd");
    EXPECT_NE(text.find("(filename \"" + path("m1.ope") + "\")"), std::string::npos) << text;
    EXPECT_NE(text.find("(filename \"$(dir)/any.ope\")"), std::string::npos) << text;
}

TEST_F(AxSxpParameterDbTest, ARecordDoesNotTakeTheNameOfOneThatWasNotLoaded)
{
    std::string const name = "m1_1_1_1_225_1_1_3_0.ope";
    put("x/" + name, record("(mass 1.0)"));
    put("m1.ope", record("(mass 2.0)"));
    put("x.opd", database(entry(theTanks, ".\\\\x\\\\" + name) + entry(theTank, "m1.ope")));
    ASSERT_TRUE(db.load(AxFilename(path("x.opd"))));
    ASSERT_TRUE(db.lookup(tank));
    ASSERT_TRUE(db.save(AxFilename(path("x.opd"))));
    EXPECT_EQ(entryOf(db, tank)->filename().string(), ".\\x\\m1_1_1_1_225_1_1_3_0-2.ope");
    EXPECT_EQ(db.lookup(typeOf("1:1:1:225:1:1:9:0"))->mass(), 1.0);
}

TEST_F(AxSxpParameterDbTest, DataRootIsLeftOutOnceARecordOfAnEntityFileIsWritten)
{
    for (bool const isRewritten : {false, true})
    {
        load(entry(theTank, "m1.entity"), "(variable-bindings (data-root \"$(opd-dir)/data\") (v 1)) (version 101)");
        entryOf(db, tank)->setParameters(isRewritten ? made("zed-object-param").release() : nullptr);
        boost::filesystem::create_directories(path("data"));
        ASSERT_TRUE(db.save(AxFilename(path("x.opd"))));
        EXPECT_EQ(get("x.opd").find("data-root") == std::string::npos, isRewritten) << get("x.opd");
        EXPECT_NE(get("x.opd").find("(v 1)"), std::string::npos);
        db.removeAll();
    }
}

TEST_F(AxSxpParameterDbTest, ReferencesAreWrittenAsTheyWereOnlyWhereTheyMeanTheSame)
{
    put("m1.ope", record(""));
    load(entry(theTank, "$(opd-dir)/m1.ope"));
    boost::filesystem::create_directories(path("out"));
    ASSERT_TRUE(db.save(AxFilename(path("out/x.opd"))));
    EXPECT_NE(get("out/x.opd").find('"' + path("m1.ope") + '"'), std::string::npos) << get("out/x.opd");
    ASSERT_TRUE(db.save(AxFilename(path("x.opd"))));
    EXPECT_NE(get("x.opd").find("\"$(opd-dir)/m1.ope\""), std::string::npos) << get("x.opd");
}

TEST_F(AxSxpParameterDbTest, NamesRelativeToARecordAreFoundFromItsNewPlace)
{
    // The database's directory, the name of the definition there, the one that the saved record gives.
    struct Case
    {
        char const* database;
        char const* name;
        char const* expected;
    };
    for (Case const& c :
         {Case{"x.opd", "../../parts/gun.sys", "../parts/gun.sys"}, Case{"x.opd", "near.sys", "../a/b/near.sys"},
          Case{"a/x.opd", "../../parts/gun.sys", "../../parts/gun.sys"},
          Case{"out/x.opd", "../../parts/gun.sys", "../../parts/gun.sys"}, Case{"x.opd", "none.sys", "none.sys"},
          Case{"x.opd", "library.sys", "library.sys"}})
    {
        put("parts/gun.sys", "(system-definition)");
        put("a/b/near.sys", "(system-definition)");
        put("paths/library.sys", "(system-definition)");
        put("a/b/m1.ope", record(std::string("(systems (gun (system-definition \"") + c.name + "\")))"));
        AxSxpParameterDb original;
        original.init();
        original.setSearchPaths({path("paths")});
        put("d.opd", database(entry(theTank, "a/b/m1.ope")));
        ASSERT_TRUE(original.loadAll(AxFilename(path("d.opd"))));
        ASSERT_TRUE(original.save(AxFilename(path(c.database))));
        AxSxpParameterDb saved;
        saved.init();
        saved.setSearchPaths({path("paths")});
        warned();
        ASSERT_TRUE(saved.loadAll(AxFilename(path(c.database))));
        EXPECT_EQ(warned().empty(), std::string(c.name) != "none.sys") << c.name;
        EXPECT_NE(saved.lookup(tank)->writtenText().find(std::string("\"") + c.expected + '"'), std::string::npos)
            << saved.lookup(tank)->writtenText();
    }
}

TEST_F(AxSxpParameterDbTest, DependentFilesAreCopied)
{
    put("a.dmg", "text");
    put("b.dmg", "text");
    db.addDependentParameterFileToCopyPair(path("a.dmg"), path("out/deep/a.dmg"));
    db.addDependentParameterFileToCopyPair(path("b.dmg"), path("b.dmg"));
    db.addDependentParameterFileToCopyPair(path("none.dmg"), path("out/none.dmg"));
    news.clear();
    ASSERT_TRUE(db.save(AxFilename(path("x.opd"))));
    EXPECT_EQ(get("out/deep/a.dmg"), "text");
    EXPECT_EQ(warned(), "Error copying " + path("none.dmg") + " to " + path("out/none.dmg") + '\n');
    EXPECT_NE(news.text().find("There are parameter files to copy\nFrom: " + path("a.dmg") +
                               " To: " + path("out/deep/a.dmg") + '\n'),
              std::string::npos);
}

TEST_F(AxSxpParameterDbTest, TableDirectoriesAreCopiedInOrder)
{
    Steps steps;
    put("from/damage/deep/a.dmg", "text");
    put("from/hit/a.hit", "text");
    boost::filesystem::create_directories(path("from/detection/empty"));
    news.clear();
    EXPECT_FALSE(steps.copyDependentParameterDirectories(path("from"), path("to")));
    EXPECT_EQ(warned(), "Error copying ammoselect directory to " + path("to") + '\n');
    EXPECT_EQ(files("to"), "damage/deep/a.dmg hit/a.hit");
    EXPECT_EQ(news.text(),
              "Copying dependent parameter file directories from " + path("from") + " to " + path("to") + '\n');
}

TEST_F(AxSxpParameterDbTest, NamesOfRecordFiles)
{
    AxSxpParameterDbWriter writer;
    EXPECT_EQ(writer.generateFilename("m1a1", tank).string(), "m1a1_1_1_1_225_1_1_3_0.ope");
    EXPECT_EQ(writer.generateFilename("", AxObjectType()).string(), "_0_0_0_0_0_0_0_0.ope");
    EXPECT_EQ(writer.generateFilename("../m1\\x", tanks).string(), ".._m1_x_1_1_1_225_1_1_-1_-1.ope");
    EXPECT_EQ(db.stripExtension("tanks.opd", ".opd").string(), "tanks");
    EXPECT_EQ(db.stripExtension("tanks.OPD", ".opd").string(), "tanks.OPD");
    Steps steps;
    EXPECT_EQ(steps.getPath("/d/x.opd").string(), "/d/");
    EXPECT_EQ(steps.getPath("d\\x.opd").string(), "d\\");
    EXPECT_TRUE(steps.getPath("/x.opd").isNull());
    EXPECT_TRUE(steps.getPath("x.opd").isNull());
}

TEST_F(AxSxpParameterDbTest, EqualNamesInOneSaveAreNumbered)
{
    // An exact entry and a match entry of one type stand side by side while something sorts above.
    db.add(typeOf("2:1:1:1:1:1:1:1"), "", false, nullptr);
    for (bool const isMatchType : {false, true})
    {
        AxZedObjectParameters* const added = made("zed-object-param").release();
        added->setObjectType(tank);
        added->setMass(isMatchType ? 2.0 : 1.0);
        db.add(tank, "", isMatchType, added);
    }
    ASSERT_TRUE(db.save(AxFilename(path("x.opd"))));
    std::string const name = entryOf(db, tank)->filename().stripPath().string().string();
    EXPECT_EQ(files("x"), name.substr(0, name.size() - 4) + "-2.ope " + name);
}

TEST_F(AxSxpParameterDbTest, RefusesNamesThatWouldLoseRecords)
{
    for (std::string const& name : {path("tanks"), path("X.OPD"), path(".opd"), std::string("/x.opd")})
    {
        EXPECT_FALSE(db.save(AxFilename(name)));
        EXPECT_EQ(findings.back().code, "bad-name");
        std::string const said = warned();
        EXPECT_NE(said.find("\nError writing parameter database file " + name + '\n'), std::string::npos) << said;
    }
    EXPECT_EQ(files(), "");
}

TEST_F(AxSxpParameterDbTest, ARecordThatCannotBeWrittenKeepsItsFile)
{
    loadTank();
    db.lookup(tank);
    boost::filesystem::create_directories(path("x/m1_1_1_1_225_1_1_3_0.ope"));
    EXPECT_TRUE(db.save(AxFilename(path("x.opd"))));
    EXPECT_EQ(warned(), "Could not open parameter file " + path("x/m1_1_1_1_225_1_1_3_0.ope") + " for writing\n");
    EXPECT_EQ(entryOf(db, tank)->filename().string(), "m1.ope");
    EXPECT_NE(get("x.opd").find("\"m1.ope\""), std::string::npos);
}

TEST_F(AxSxpParameterDbTest, AFailedSaveLeavesTheFilesAsTheyWere)
{
    loadTank();
    db.lookup(tank);
    put("x/m1_1_1_1_225_1_1_3_0.ope", "old");
    boost::filesystem::create_directories(path("x.opd"));
    EXPECT_FALSE(db.save(AxFilename(path("x.opd"))));
    EXPECT_EQ(warned(), "Could not open parameter file " + path("x.opd") +
                            " for writing\nCan't write top-level parameter database file " + path("x.opd") +
                            "\nError writing parameter database file " + path("x.opd") + '\n');
    EXPECT_EQ(get("x/m1_1_1_1_225_1_1_3_0.ope"), "old");
    EXPECT_EQ(files(), "force.opd m1.ope x/m1_1_1_1_225_1_1_3_0.ope");
    EXPECT_EQ(entryOf(db, tank)->filename().string(), "m1.ope");
    EXPECT_EQ(db.versionNumber(), 101);
}

TEST_F(AxSxpParameterDbTest, AMissingDirectoryFailsTheSave)
{
    put("file", "");
    EXPECT_FALSE(db.save(AxFilename(path("file/x.opd"))));
    EXPECT_EQ(findings.front().code, "cannot-create");
    EXPECT_EQ(files(), "file");
}

TEST_F(AxSxpParameterDbTest, OneSaveAtATime)
{
    struct Nested : AxSxpParameterDbWriter
    {
        void preWrite(AxSxpParameterDbFileData const&, AxFilename const& file, std::string&) override
        {
            inner = write(owner, file, ".\\inner");
        }
        AxSxpParameterDb* owner = nullptr;
        bool inner = true;
    };
    auto* const writer = new Nested;
    writer->owner = &db;
    db.setWriter(writer);
    EXPECT_TRUE(db.save(AxFilename(path("x.opd"))));
    EXPECT_FALSE(writer->inner);
    EXPECT_EQ(findings.back().code, "save-running");
}

TEST_F(AxSxpParameterDbTest, TheWriterSeesEverythingBeforeItWritesItself)
{
    struct Counting : AxSxpParameterDbWriter
    {
        void processPrePutSelfCb(AxReaderWriter* rw, std::string&) override
        {
            sawRecord = sawRecord || dynamic_cast<AxZedObjectParameters*>(rw);
        }
        void postWrite(AxSxpParameterDbFileData const&, AxFilename const&, std::string& out) override
        {
            out += "; end\n";
        }
        bool sawRecord = false;
    };
    auto* const writer = new Counting;
    db.setWriter(writer);
    loadTank();
    db.lookup(tank);
    ASSERT_TRUE(db.save(AxFilename(path("x.opd"))));
    EXPECT_TRUE(writer->sawRecord);
    EXPECT_TRUE(get("x.opd").ends_with("; end\n"));
}

TEST_F(AxSxpParameterDbTest, WhatWasNotUnderstoodSurvivesASave)
{
    put("m1.ope", record("(future-item 1 (2 \"x\"))"));
    load(entry(theTank, "m1.ope") + "(parameter-entry (object-type many) (filename \"a.ope\"))\n(other-entry 1)\n",
         "(future 1 2) (variable-bindings (v 1)) (version 101)");
    EXPECT_EQ(db.numParameterEntries(), 1);
    db.lookup(tank);
    ASSERT_TRUE(db.save(AxFilename(path("x.opd"))));
    std::string const text = get("x.opd");
    for (char const* part :
         {"(future 1 2)", "(parameter-entry (object-type many) (filename \"a.ope\"))", "(other-entry 1)", "(v 1)"})
    {
        std::size_t const at = text.find(part);
        ASSERT_NE(at, std::string::npos) << part << " in " << text;
        EXPECT_EQ(text.find(part, at + 1), std::string::npos) << part << " twice in " << text;
    }
    EXPECT_NE(get("x/m1_1_1_1_225_1_1_3_0.ope").find("(future-item 1 (2 \"x\"))"), std::string::npos);
}

TEST_F(AxSxpParameterDbTest, RemoteConfigurationsSurviveASave)
{
    load("",
         "(version 101) (variable-bindings (v 1)) (remote-configurations (remote-configuration (object-type 1 1 1 -1 "
         "-1 -1 -1 -1) (system-definitions \"radio.sys\" \"gun.sys\")))");
    ASSERT_EQ(db.remoteConfigurationList()->count(), 1);
    AxRemoteConfiguration const& read = **db.remoteConfigurationList()->begin();
    EXPECT_EQ(read.variableBindings(), db.variableBindings().front());
    ASSERT_TRUE(db.save(AxFilename(path("x.opd"))));
    AxSxpParameterDb again;
    again.init();
    ASSERT_TRUE(again.load(AxFilename(path("x.opd"))));
    ASSERT_EQ(again.remoteConfigurationList()->count(), 1);
    EXPECT_TRUE((*again.remoteConfigurationList()->begin())->equals(read));
    again.removeAll();
    EXPECT_EQ(again.remoteConfigurationList()->count(), 0);
}

TEST_F(AxSxpParameterDbTest, ADerivedEntryOfAnotherClassIsSaidAndLeftOut)
{
    Steps steps;
    steps.init();
    steps.addParameterDbEntry(new AxZedParameterDbEntry);
    EXPECT_EQ(steps.lookup(AxObjectType()), nullptr);
    EXPECT_TRUE(steps.save(AxFilename(path("x.opd"))));
    EXPECT_EQ(warned(), "Entry in parameter database is NULL or not a AxSxpParameterDbFileEntry\n");
}

TEST_F(AxSxpParameterDbTest, NullArgumentsAreSaid)
{
    Steps steps;
    ReaderSteps reader;
    AxSxpParameterDbWriter writer;
    AxSxpParameterDbFileData data;
    AxFilename const file("x.opd");
    AxFilename root;
    data.addEntry(tank, AxFilename(), false, nullptr);
    EXPECT_EQ(steps.getParameters(nullptr), nullptr);
    EXPECT_EQ(warned(), "AxSxpParameterDb::getParameters() : NULL entry\n");
    EXPECT_FALSE(steps.load(file));
    EXPECT_EQ(warned(), "AxZedParameterDb::load() - Can't load x.opd.  Parameter DB reader is NULL\n");
    EXPECT_FALSE(steps.save(file));
    EXPECT_EQ(warned(), "AxZedParameterDb::save() - Can't save x.opd.  Parameter DB writer is NULL\n");
    EXPECT_FALSE(reader.loadParameterDb(file, nullptr));
    EXPECT_EQ(warned(), "AxSxpParameterDbReader::loadParameterDb() : Can't load NULL parameter database\n");
    EXPECT_FALSE(reader.load(file, nullptr, root));
    EXPECT_EQ(warned(), "AxSxpParameterDbReader::getParameterDbData() : Can't load parameter data file into NULL "
                        "AxSxpParameterDbFileData object\n");
    EXPECT_FALSE(reader.load(file, nullptr));
    EXPECT_EQ(warned(), "AxSxpParameterDbReader::load() : NULL AxZedObjectParametersList specified\n");
    EXPECT_FALSE(reader.putFileDataInParameterDb(data, root, nullptr));
    EXPECT_EQ(warned(), "AxSxpParameterDbReader::putFileDataInParameterDb() : Can't load parameter file data into NULL "
                        "AxSxpParameterDb object\n");
    reader.setFilenamePathsRelativeToFile(file, nullptr);
    EXPECT_EQ(warned(), "AxSxpParameterDbReader::setFilenamePathsRelativeToFile() : Can't set paths on NULL "
                        "AxSxpParameterDbFileData object\n");
    reader.setFilenamePathsRelativeToFile(file, &data);
    EXPECT_EQ(warned(), "AxSxpParameterDbReader::setFilenamePathsRelativeToFile() : empty filename in entry\n");
    EXPECT_FALSE(writer.writeParameterFile(file, nullptr));
    EXPECT_EQ(warned(), "AxSxpParameterDbWriter::writeParameterFile() : NULL AxZedObjectParameters object specified\n");
}

TEST_F(AxSxpParameterDbTest, FileNamesCanBeMadeRelativeToTheDatabase)
{
    AxSxpParameterDbFileData data;
    AxSxpParameterDbFileEntry const* const made = data.addEntry(tank, "m1.ope", false, nullptr);
    ReaderSteps().setFilenamePathsRelativeToFile("/d/x.opd", &data);
    EXPECT_EQ(made->filename().string(), "/d/m1.ope");
}

TEST_F(AxSxpParameterDbTest, TakesTheRecordsOfACollection)
{
    put("all.params",
        "(sim-object-parameters (individual-entity-parameters (parameter-type \"zed-object-param\") (object-type 1 1 "
        "225 "
        "-1 -1 -1 -1) (mass 9.0)) (individual-entity-parameters (parameter-type \"zed-object-param\") (object-type 1 1 "
        "225 1 1 3 0)))");
    AxZedObjectParametersList list(AxSymbolString("sim-object-parameters"), nullptr);
    list.registerElementType("individual-entity-parameters", 1);
    ReaderSteps reader;
    ASSERT_TRUE(reader.load(AxFilename(path("all.params")), &list));
    ASSERT_TRUE(reader.putFileDataInParameterDb(list, &db));
    EXPECT_EQ(db.numParameterEntries(), 2);
    AxZedObjectParameters* const found = db.lookup(typeOf("1:1:1:225:1:1:3:0"));
    ASSERT_TRUE(found);
    EXPECT_EQ(found->mass(), 9.0);
    EXPECT_TRUE(entryOf(db, tank)->filename().isNull());
}
