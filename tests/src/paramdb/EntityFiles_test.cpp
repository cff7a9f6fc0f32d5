#include "AxEnvXMLWriter.h"
#include "AxMovingObjectParameters.h"
#include "AxZedXmlUtils.h"
#include "DatabaseFixture.h"

#include <boost/make_shared.hpp>
#include <random>

namespace
{
/// A database whose records stand in entity files below "data".
class EntityFiles : public DatabaseFixture
{
protected:
    static std::string object(std::string const& types, std::string const& platform)
    {
        return "<simObject name=\"m1\">" + types + "<platform parameter-type=\"moving-object-param\" " + platform +
               "/></simObject>";
    }
    static std::string exact(char const* type) { return std::string("<objectType value=\"") + type + "\"/>"; }
    static std::string match(char const* type) { return std::string("<matchType value=\"") + type + "\"/>"; }
    static std::string further(char const* type)
    {
        return std::string("<objectTypes name=\"additional-match-types\"><objectType value=\"") + type +
               "\"/></objectTypes>";
    }
    AxFilename putDatabase(std::string const& entries = "", std::string const& root = "$(opd-dir)/data") const
    {
        return put("d.opd", database(entries, "(variable-bindings (data-root \"" + root + "\")) (version 101)"));
    }
    bool load(AxFilename const& file) { return db.load(file); }
    double speedOf(AxSxpParameterDb& from, AxObjectType const& type, AxObjectType* matched = nullptr) const
    {
        auto const* record = dynamic_cast<AxMovingObjectParameters const*>(from.lookup(type, matched));
        return record != nullptr ? record->maxSpeed() : -1.0;
    }
    std::string typesOf(AxSxpParameterDb const& of) const
    {
        std::string text;
        for (AxListItem const* item = of.parameterList().first(); item != nullptr; item = item->next())
        {
            auto const& entry = *static_cast<AxSxpParameterDbEntry const*>(item->data());
            text += entry.objectType().string().string() + (entry.typeIsMatchType() ? "~ " : " ");
        }
        return text;
    }
};

constexpr char const* theTank = "1:1:1:225:1:1:3:0";
constexpr char const* theTanks = "1:1:1:225:1:1:-1:-1";
constexpr char const* theM60s = "1:1:1:225:1:2:-1:-1";
constexpr char const* theTrucks = "1:1:1:-1:6:-1:-1:-1";
} // namespace

TEST_F(EntityFiles, EachTypeOfEachElementBecomesAnEntry)
{
    put("data/m1.entity",
        "<f>" + object(exact(theTank) + match(theTanks) + further(theM60s), "max-speed=\"18.5\"") + "</f>");
    put("data/more/truck.entity", object(match(theTrucks), "max-speed=\"22\""));
    put("data/more/truck.entity.old", "no XML");
    ASSERT_TRUE(load(putDatabase()));
    EXPECT_EQ(typesOf(db), "1:1:1:-1:6:-1:-1:-1~ 1:1:1:225:1:1:-1:-1~ 1:1:1:225:1:1:3:0 1:1:1:225:1:2:-1:-1~ ");
    AxObjectType matched;
    EXPECT_EQ(speedOf(db, tank, &matched), 18.5);
    EXPECT_EQ(matched, tank);
    EXPECT_EQ(speedOf(db, typeOf("1:1:1:225:1:1:2:0"), &matched), 18.5);
    EXPECT_EQ(matched, tanks);
    EXPECT_EQ(speedOf(db, typeOf("1:1:1:222:6:1:0:0"), &matched), 22.0);
    EXPECT_EQ(speedOf(db, typeOf("1:1:2:222:6:1:0:0")), -1.0);
    EXPECT_EQ(warned(), "");
}

TEST_F(EntityFiles, RecordsOfOneFileShareItsTreeUntilTheFileChanges)
{
    put("data/a.entity", "<f>" + object(exact(theTank), "") + object(exact(theTanks), "") + "</f>");
    ASSERT_TRUE(load(putDatabase()));
    AxZedObjectParameters const* first = db.lookup(tank);
    AxZedObjectParameters const* second = db.lookup(tanks);
    ASSERT_TRUE(first && second);
    EXPECT_EQ(first->xmlEnvironment(), second->xmlEnvironment());
    EXPECT_EQ(first->objectType(), tank);
    put("data/a.entity", "<f>" + object(exact(theTank), "max-speed=\"7.25\"") + "</f>");
    EXPECT_TRUE(entryOf(db, tank)->loadFromFile(entryOf(db, tank)->filename()));
    EXPECT_EQ(speedOf(db, tank), 7.25);
}

TEST_F(EntityFiles, AmongManyObjectsOfAFileTheLastOfAnEntrysTypeIsRead)
{
    std::mt19937 engine(5);
    for (int round = 0; round < 20; ++round)
    {
        std::string text;
        for (int i = 0; i < 12; ++i)
        {
            std::string const type = "1:1:1:225:1:1:" + std::to_string(engine() % 6) + ":0";
            std::string const types = (engine() % 4 != 0 ? exact(type.c_str()) : "") +
                                      (engine() % 3 == 0 ? match(("1:1:1:225:1:2:" + type.substr(14)).c_str()) : "");
            std::string const made = object(types, "max-speed=\"" + std::to_string(i) + "\"");
            text += engine() % 3 == 0 ? "<g>" + made + "</g>" : made;
        }
        AxFilename const file = put("data/a.entity", "<f>" + text + "</f>");
        AxSxpParameterDb forces;
        forces.init();
        ASSERT_TRUE(forces.load(putDatabase()));
        AxEnvironmentPtr const own = AxZedXmlUtils::CreateZedXmlEnvironment(file, true);
        for (AxListItem const* item = forces.parameterList().first(); item != nullptr; item = item->next())
        {
            auto& entry = *static_cast<AxSxpParameterDbEntry*>(item->data());
            AxZedObjectParameters const* const record = entry.load();
            AxEnvValuePtr const element = entry.typeIsMatchType()
                                              ? AxZedXmlUtils::findObjectElementByMatchType(own, entry.objectType())
                                              : AxZedXmlUtils::findObjectElementByObjectType(own, entry.objectType());
            ASSERT_TRUE(record && element);
            EXPECT_TRUE(equalTrees(record->objectNode(), element)) << text;
        }
        // A host may take elements out of the tree that the records share.
        auto& last = *static_cast<AxSxpParameterDbEntry*>(forces.parameterList().last()->data());
        AxEnvironmentPtr const shared = last.parameters()->xmlEnvironment();
        AxEnvValuePtr const former = last.parameters()->objectNode();
        shared->remove(former);
        last.load();
        EXPECT_TRUE(AxZedXmlUtils::findObjectElementByObjectType(shared, last.objectType()) == nullptr ||
                    last.parameters()->objectNode() != former);
    }
}

TEST_F(EntityFiles, EachSavedRecordKeepsItsPlaceAmongWhatIsUnknown)
{
    put("data/a.entity", "<!-- of all --><f version=\"3\">" + object(exact(theTank), "") + "<odd/>" +
                             object(exact(theTanks), "") + "</f>");
    ASSERT_TRUE(db.loadAll(putDatabase()));
    ASSERT_TRUE(db.save(AxFilename(path("saved.opd"))));
    for (auto const& [file, around] : {std::pair("saved/m1_1_1_1_225_1_1_3_0.ope", "<simObject/>\n<odd/>"),
                                       std::pair("saved/m1_1_1_1_225_1_1_-1_-1.ope", "<odd/>\n<simObject/>")})
    {
        std::string const expected = "<file>\n<!-- of all -->\n<f version=\\\"3\\\">\n" + std::string(around);
        EXPECT_NE(get(file).find(expected), std::string::npos) << files() << get(file);
    }
}

TEST_F(EntityFiles, ARecordThatIsReadAgainBelongsToTheNewElement)
{
    auto const labelled = [](char const* label)
    { return object(exact(theTank) + "<guiInformation name=\"gui\" label=\"" + label + "\"/>", ""); };
    auto const writtenTree = [](AxZedObjectParameters const& record)
    {
        auto const env = boost::make_shared<AxEnvironment>();
        std::string text;
        EXPECT_TRUE(AxZedXmlUtils::addObject(env, {}, record) && AxEnvXMLWriter().writeText(env, text));
        return text;
    };
    put("data/a.entity", labelled("old"));
    ASSERT_TRUE(load(putDatabase()));
    AxZedObjectParameters* const record = db.lookup(tank);
    ASSERT_TRUE(record);
    AxEnvironmentPtr const before = record->xmlEnvironment();
    put("data/a.entity", labelled("newer"));
    ASSERT_EQ(entryOf(db, tank)->load(), record);
    EXPECT_NE(record->xmlEnvironment(), before);
    EXPECT_EQ(record->objectNode(), record->xmlEnvironment()->root());
    EXPECT_NE(writtenTree(*record).find("\"newer\""), std::string::npos) << writtenTree(*record);
    // What a save kept of the old element gives way, too.
    AxZedXmlUtils::keepOthers(*record, false);
    put("data/a.entity", labelled("newest"));
    ASSERT_EQ(entryOf(db, tank)->load(), record);
    EXPECT_NE(writtenTree(*record).find("\"newest\""), std::string::npos) << writtenTree(*record);
    put("a.ope", "(m1 (parameter-type \"moving-object-param\"))");
    ASSERT_EQ(entryOf(db, tank)->loadFromFile(AxFilename(path("a.ope"))), record);
    EXPECT_FALSE(record->objectNode() || record->xmlEnvironment());
}

TEST_F(EntityFiles, RecordsAreReadWhenTheyAreFirstAskedFor)
{
    put("data/a.entity", object(exact(theTank), "max-speed=\"1\""));
    ASSERT_TRUE(load(putDatabase()));
    put("data/a.entity", object(exact(theTank), "max-speed=\"2\""));
    EXPECT_EQ(speedOf(db, tank), 2.0);
    put("data/a.entity", object(exact(theTank), "max-speed=\"3\""));
    EXPECT_EQ(speedOf(db, tank), 2.0);
}

TEST_F(EntityFiles, TheLaterFileAnswersAndTheListedEntryGivesWay)
{
    put("m1.ope", record("(max-speed 1.0)", "moving-object-param"));
    put("data/b.entity", object(exact(theTank), "max-speed=\"3\""));
    put("data/a/z.entity", object(exact(theTank), "max-speed=\"2\""));
    ASSERT_TRUE(load(putDatabase(entry("1 1 1 225 1 1 3 0", "m1.ope"))));
    EXPECT_EQ(db.numParameterEntries(), 1);
    EXPECT_EQ(speedOf(db, tank), 3.0);
}

TEST_F(EntityFiles, AFaultGivesOneLineAndTheRestLoads)
{
    struct Case
    {
        std::string text;
        char const* said;
    };
    Case const cases[] = {
        {"<f><a></f>", "bad.entity:1:9: error: mismatched tag [xml-syntax]"},
        {"", "bad.entity:1:1: error: no element found [xml-syntax]"},
        {"<?xml version=\"1.0\" encoding=\"klingon\"?><f/>",
         "bad.entity:1:1: error: encoding \"klingon\" is not supported [xml-encoding]"},
        {"<!DOCTYPE f [<!ENTITY a \"aaaa\">]><f>&a;</f>",
         "bad.entity:1:25: error: entity declarations are not accepted [xml-entity]"},
        {"<f>\n<simObject/></f>", "bad.entity:2:1: warning: the element has no object type and no match type, so that "
                                  "nothing finds it [no-object-type]"},
        {"<f>\n<simObject><objectType value=\"1:x\"/></simObject></f>",
         "bad.entity:2:12: error: expected 7 or 8 whole numbers for an object type, found \"1:x\" [wrong-kind]"},
        {"<f>" + object(exact("1:1:1:225:1:1:4:0"), "") + "\n" + object(exact("1:1:1:225:1:1:4:0"), "") + "</f>",
         "bad.entity:2:1: warning: the type 1:1:1:225:1:1:4:0 stands in the file before; the later element answers "
         "[repeated-type]"},
    };
    for (Case const& c : cases)
    {
        AxSxpParameterDb fresh;
        fresh.init();
        put("data/bad.entity", c.text);
        put("data/good.entity", object(exact(theTank), "max-speed=\"2\""));
        EXPECT_TRUE(fresh.load(putDatabase()));
        std::string said = warned();
        for (std::size_t at; (at = said.find(directory() + "/data/")) != std::string::npos;)
        {
            said.erase(at, directory().size() + 6);
        }
        EXPECT_EQ(said, std::string(c.said) + '\n');
        EXPECT_EQ(speedOf(fresh, tank), 2.0);
    }
}

TEST_F(EntityFiles, AMissingDataRootIsTold)
{
    EXPECT_TRUE(load(putDatabase("", "$(opd-dir)/none")));
    EXPECT_NE(warned().find("cannot read the directory " + path("none")), std::string::npos);
    EXPECT_EQ(db.numParameterEntries(), 0);
}

TEST_F(EntityFiles, RecordsThatCannotBeMadeAreToldAtEachLookUp)
{
    AxFilename const file = put("data/a.entity", object(exact(theTank), ""));
    ASSERT_TRUE(load(putDatabase()));
    put("data/a.entity", object(exact(theTanks), ""));
    EXPECT_EQ(db.lookup(tank), nullptr);
    EXPECT_EQ(warned(), "Entry not found for type 1:1:1:225:1:1:3:0 in file " + file.string().string() + '\n');
    boost::filesystem::remove(file.native());
    EXPECT_EQ(db.lookup(tank), nullptr);
    EXPECT_EQ(warned(), "Could not open parameter file " + file.string().string() + ": No such file or directory\n");
    put("data/a.entity", "<simObject>" + exact(theTank) + "\n</simObject>");
    EXPECT_EQ(db.lookup(tank), nullptr);
    EXPECT_EQ(warned(), file.string().string() + ":1:1: error: expected an element \"platform\" [no-platform]\n");
    put("data/a.entity", object(exact(theTank), "max-speed=\"4\""));
    EXPECT_EQ(speedOf(db, tank), 4.0) << "a failed look-up is tried again";
}

TEST_F(EntityFiles, SavedRecordsBecomeParameterFilesAndTheDataRootGoes)
{
    put("data/a.entity", object(exact(theTank) + match(theTanks), "max-speed=\"2\" category=\"tank\""));
    ASSERT_TRUE(load(putDatabase()));
    ASSERT_EQ(speedOf(db, tank), 2.0);
    ASSERT_TRUE(db.save(AxFilename(path("saved.opd"))));
    EXPECT_EQ(get("saved.opd").find("data-root"), std::string::npos);
    AxSxpParameterDb saved;
    saved.init();
    ASSERT_TRUE(saved.load(AxFilename(path("saved.opd"))));
    EXPECT_EQ(typesOf(saved), "1:1:1:225:1:1:-1:-1 1:1:1:225:1:1:3:0 ");
    EXPECT_EQ(speedOf(saved, tank), 2.0);
    EXPECT_EQ(speedOf(saved, typeOf("1:1:1:225:1:1:9:0")), 2.0) << "still from the entity file, by its match type";
    EXPECT_EQ(warned(), "");
}

TEST_F(EntityFiles, WhatWasChangedIsNotUndoneByTheDataRootOfASavedDatabase)
{
    AxObjectType const trucks = typeOf(theTrucks);
    put("data/a.entity", object(exact(theTank), "max-speed=\"2\""));
    put("data/b.entity", object(exact(theTrucks), "max-speed=\"3\""));
    ASSERT_TRUE(load(putDatabase()));
    AxFilename const file(path("d.opd"));
    auto const expect = [&](char const* change, double speed)
    {
        SCOPED_TRACE(change);
        ASSERT_TRUE(db.save(file));
        ASSERT_TRUE(db.save(file)) << "once more";
        AxSxpParameterDb saved;
        saved.init();
        ASSERT_TRUE(saved.load(file));
        EXPECT_EQ(typesOf(saved), typesOf(db));
        EXPECT_EQ(speedOf(saved, tank), speed);
        EXPECT_EQ(speedOf(saved, trucks), 3.0);
    };
    db.remove(tank);
    expect("removed", -1.0);

    ASSERT_TRUE(load(putDatabase()));
    RecordPtr another = made("moving-object-param");
    static_cast<AxMovingObjectParameters&>(*another).setMaxSpeed(4.0);
    db.add(tank, another.release());
    expect("replaced", 4.0);

    ASSERT_TRUE(load(putDatabase()));
    static_cast<AxMovingObjectParameters*>(db.lookup(tank))->setMaxSpeed(5.0);
    expect("edited", 5.0);

    AxObjectType const other = typeOf("1:1:1:225:1:1:9:0");
    ASSERT_TRUE(load(putDatabase()));
    db.lookupParameterDbEntry(tank, nullptr)->setObjectType(other);
    expect("of another type", -1.0);

    ASSERT_TRUE(load(putDatabase()));
    db.lookupParameterDbEntry(tank, nullptr)->setTemporary(true);
    ASSERT_TRUE(db.save(file));
    AxSxpParameterDb withoutIt;
    withoutIt.init();
    ASSERT_TRUE(withoutIt.load(file));
    EXPECT_EQ(speedOf(withoutIt, tank), -1.0);

    db.removeAll();
    ASSERT_TRUE(db.save(file));
    AxSxpParameterDb saved;
    saved.init();
    ASSERT_TRUE(saved.load(file));
    EXPECT_EQ(saved.numParameterEntries(), 0);
}

TEST_F(EntityFiles, UnloadedEntriesStayWithTheDataRoot)
{
    put("data/a.entity", object(exact(theTank), "max-speed=\"2\""));
    ASSERT_TRUE(load(putDatabase()));
    ASSERT_TRUE(db.save(AxFilename(path("d.opd"))));
    EXPECT_NE(get("d.opd").find("(data-root \"$(opd-dir)/data\")"), std::string::npos);
    AxSxpParameterDb saved;
    saved.init();
    ASSERT_TRUE(saved.load(AxFilename(path("d.opd"))));
    EXPECT_EQ(speedOf(saved, tank), 2.0);
    EXPECT_EQ(saved.numParameterEntries(), 1);
}

TEST_F(EntityFiles, NamesOfUnloadedFilesAreRelativeToTheDatabase)
{
    put("data/a/m1.entity", object(exact(theTank), "max-speed=\"2\""));
    ASSERT_TRUE(load(putDatabase()));
    ASSERT_TRUE(db.save(AxFilename(path("d.opd"))));
    EXPECT_NE(get("d.opd").find("(filename \"data/a/m1.entity\")"), std::string::npos) << get("d.opd");
    boost::filesystem::create_directories(path("out"));
    EXPECT_EQ(db.addUnloadedFilesToCopyPairs(AxFilename(path("out"))), 1);
    ASSERT_TRUE(db.save(AxFilename(path("out/d.opd"))));
    boost::filesystem::remove_all(path("data"));
    AxSxpParameterDb saved;
    saved.init();
    ASSERT_TRUE(saved.load(AxFilename(path("out/d.opd"))));
    EXPECT_EQ(speedOf(saved, tank), 2.0);
    EXPECT_EQ(warned(), "");
}

TEST_F(EntityFiles, VariablesMeanTheSameInASavedDatabaseElsewhere)
{
    // Each text of the record, and what it is in the new place.
    struct Case
    {
        char const* variables;
        char const* text;
        std::string expected;
    };
    std::string const root = path("out") + "/data";
    for (Case const& c : {Case{"", "$(data-root)/x", root + "/x"}, Case{"", "$(parts)/x", root + "/parts/x"},
                          Case{"", "$data-root", root}, Case{"", "$$(data-root)", "$(data-root)"},
                          Case{"<variable name=\"data-root\" value=\"own\" type=\"string\"/>", "$data-root", "own"},
                          Case{"<variable name=\"at\" value=\"$data-root\"/>", "$at", root}})
    {
        put("data/m1.entity", object(exact(theTank) + "<variableBindings>" + c.variables + "</variableBindings>",
                                     std::string("category=\"") + c.text + '"'));
        put("d.opd", database("", "(variable-bindings (parts \"$(data-root)/parts\") (data-root \"$(opd-dir)/data\"))"
                                  " (version 101) (remote-configurations (remote-configuration"
                                  " (object-type 1 1 1 -1 -1 -1 -1 -1) (system-definitions \"$(data-root)/a.sys\")))"));
        AxSxpParameterDb original;
        original.init();
        ASSERT_TRUE(original.loadAll(AxFilename(path("d.opd"))));
        boost::filesystem::create_directories(path("out"));
        ASSERT_TRUE(original.save(AxFilename(path("out/d.opd"))));
        AxSxpParameterDb saved;
        saved.init();
        ASSERT_TRUE(saved.load(AxFilename(path("out/d.opd"))));
        ASSERT_TRUE(saved.lookup(tank));
        EXPECT_EQ(saved.lookup(tank)->category(), c.expected) << c.text;
        EXPECT_NE(get("out/d.opd").find("\"$(opd-dir)/data/a.sys\""), std::string::npos) << get("out/d.opd");
        EXPECT_NE(get("out/d.opd").find("(parts \"$(opd-dir)/data/parts\")"), std::string::npos);
    }
}

TEST_F(EntityFiles, VariablesOfFilesThatDisagreeMeanTheSameInASavedDatabase)
{
    put("a.ope", record("(category \"$(kind)\")"));
    put("b.ope", record("(category \"$(name)\")"));
    put("a.opd", database(entry(DatabaseFixture::theTank, "a.ope"), "(variable-bindings (kind \"a\")) (version 101)"));
    put("b.opd", database(entry(DatabaseFixture::theTanks, "b.ope"),
                          "(variable-bindings (kind \"b\") (name \"is $(kind)\")) (version 101)"));
    ASSERT_TRUE(db.loadAll(AxFilename(path("a.opd"))) && db.loadAll(AxFilename(path("b.opd"))));
    ASSERT_TRUE(db.save(AxFilename(path("c.opd"))));
    AxSxpParameterDb saved;
    saved.init();
    ASSERT_TRUE(saved.load(AxFilename(path("c.opd"))));
    EXPECT_EQ(saved.lookup(tank)->category(), "a");
    EXPECT_EQ(saved.lookup(tanks)->category(), "is b");
}
