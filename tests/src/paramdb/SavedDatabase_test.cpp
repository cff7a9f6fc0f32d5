#include "LoadedDatabase.h"

#include "AxRemoteConfigurationList.h"
#include "AxSxpParameterDbFileData.h"

namespace
{
/// What a save writes, and what stays as it is.
class SavedDatabase : public LoadedDatabase
{
protected:
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

TEST_F(SavedDatabase, ASavedDatabaseReadsBackEqual)
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

TEST_F(SavedDatabase, ASaveIsOfVersion101AndTellsItsSteps)
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

TEST_F(SavedDatabase, EntriesWithoutARecordKeepTheirNameAndTemporaryOnesAreLeftOut)
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

TEST_F(SavedDatabase, ADanglingNameIsSaidOnceForEachEntry)
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

TEST_F(SavedDatabase, ANameFoundAlongTheSearchPathsDoesNotDangle)
{
    put("library/m1.ope", record(""));
    db.setSearchPaths({path("library")});
    load(entry(theTank, "m1.ope"));
    ASSERT_TRUE(db.save(AxFilename(path("out/x.opd"))));
    EXPECT_EQ(warned(), "");
}

TEST_F(SavedDatabase, AnOlderEntryThatWasNotLoadedIsSaid)
{
    put("m1.ope", record(""));
    load(entry(theTank, "m1.ope"), "(version 100)");
    ASSERT_TRUE(db.save(AxFilename(path("force.opd"))));
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().code, "older-version");
}

TEST_F(SavedDatabase, ReferencesAreWrittenOutWhereTheyWouldGiveAnotherName)
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

TEST_F(SavedDatabase, ARecordDoesNotTakeTheNameOfOneThatWasNotLoaded)
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

TEST_F(SavedDatabase, DataRootIsLeftOutOnceARecordOfAnEntityFileIsWritten)
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

TEST_F(SavedDatabase, ReferencesAreWrittenAsTheyWereOnlyWhereTheyMeanTheSame)
{
    put("m1.ope", record(""));
    load(entry(theTank, "$(opd-dir)/m1.ope"));
    boost::filesystem::create_directories(path("out"));
    ASSERT_TRUE(db.save(AxFilename(path("out/x.opd"))));
    EXPECT_NE(get("out/x.opd").find('"' + path("m1.ope") + '"'), std::string::npos) << get("out/x.opd");
    ASSERT_TRUE(db.save(AxFilename(path("x.opd"))));
    EXPECT_NE(get("x.opd").find("\"$(opd-dir)/m1.ope\""), std::string::npos) << get("x.opd");
}

TEST_F(SavedDatabase, NamesRelativeToARecordAreFoundFromItsNewPlace)
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

TEST_F(SavedDatabase, DependentFilesAreCopied)
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

TEST_F(SavedDatabase, TableDirectoriesAreCopiedInOrder)
{
    DatabaseSteps steps;
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

TEST_F(SavedDatabase, NamesOfRecordFiles)
{
    AxSxpParameterDbWriter writer;
    EXPECT_EQ(writer.generateFilename("m1a1", tank).string(), "m1a1_1_1_1_225_1_1_3_0.ope");
    EXPECT_EQ(writer.generateFilename("", AxObjectType()).string(), "_0_0_0_0_0_0_0_0.ope");
    EXPECT_EQ(writer.generateFilename("../m1\\x", tanks).string(), ".._m1_x_1_1_1_225_1_1_-1_-1.ope");
    EXPECT_EQ(db.stripExtension("tanks.opd", ".opd").string(), "tanks");
    EXPECT_EQ(db.stripExtension("tanks.OPD", ".opd").string(), "tanks.OPD");
    DatabaseSteps steps;
    EXPECT_EQ(steps.getPath("/d/x.opd").string(), "/d/");
    EXPECT_EQ(steps.getPath("d\\x.opd").string(), "d\\");
    EXPECT_TRUE(steps.getPath("/x.opd").isNull());
    EXPECT_TRUE(steps.getPath("x.opd").isNull());
}

TEST_F(SavedDatabase, EqualNamesInOneSaveAreNumbered)
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

TEST_F(SavedDatabase, RefusesNamesThatWouldLoseRecords)
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

TEST_F(SavedDatabase, ARecordThatCannotBeWrittenKeepsItsFile)
{
    loadTank();
    db.lookup(tank);
    boost::filesystem::create_directories(path("x/m1_1_1_1_225_1_1_3_0.ope"));
    EXPECT_TRUE(db.save(AxFilename(path("x.opd"))));
    EXPECT_EQ(warned(), "Could not open parameter file " + path("x/m1_1_1_1_225_1_1_3_0.ope") + " for writing\n");
    EXPECT_EQ(entryOf(db, tank)->filename().string(), "m1.ope");
    EXPECT_NE(get("x.opd").find("\"m1.ope\""), std::string::npos);
}

TEST_F(SavedDatabase, AFailedSaveLeavesTheFilesAsTheyWere)
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
    db.setVersionNumber(100);
    EXPECT_FALSE(db.save(AxFilename(path("x.opd"))));
    EXPECT_EQ(db.versionNumber(), 100) << "by which records that come are read";
}

TEST_F(SavedDatabase, AMissingDirectoryFailsTheSave)
{
    put("file", "");
    EXPECT_FALSE(db.save(AxFilename(path("file/x.opd"))));
    EXPECT_EQ(findings.front().code, "cannot-create");
    EXPECT_EQ(files(), "file");
}

TEST_F(SavedDatabase, OneSaveAtATime)
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

TEST_F(SavedDatabase, TheWriterSeesEverythingBeforeItWritesItself)
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

TEST_F(SavedDatabase, WhatWasNotUnderstoodSurvivesASave)
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

TEST_F(SavedDatabase, RemoteConfigurationsSurviveASave)
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
