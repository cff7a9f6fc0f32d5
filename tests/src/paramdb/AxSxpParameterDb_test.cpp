#include "LoadedDatabase.h"

#include "AxSxpParameterDbFileData.h"
#include "AxZedObjectParametersList.h"

namespace
{
/// The protected steps, for calling them alone.
struct ReaderSteps : AxSxpParameterDbReader
{
    using AxSxpParameterDbReader::load;
    using AxSxpParameterDbReader::putFileDataInParameterDb;
    using AxSxpParameterDbReader::setFilenamePathsRelativeToFile;
};

class AxSxpParameterDbTest : public LoadedDatabase
{
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

TEST_F(AxSxpParameterDbTest, ADerivedEntryOfAnotherClassIsSaidAndLeftOut)
{
    DatabaseSteps steps;
    steps.init();
    steps.addParameterDbEntry(new AxZedParameterDbEntry);
    EXPECT_EQ(steps.lookup(AxObjectType()), nullptr);
    EXPECT_TRUE(steps.save(AxFilename(path("x.opd"))));
    EXPECT_EQ(warned(), "Entry in parameter database is NULL or not a AxSxpParameterDbFileEntry\n");
}

TEST_F(AxSxpParameterDbTest, NullArgumentsAreSaid)
{
    DatabaseSteps steps;
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
