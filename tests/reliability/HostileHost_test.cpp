#include "AxComponentSystemDatabase.h"
#include "AxModelSet.h"
#include "AxRangeProbabilityTable.h"
#include "AxZedObjectParametersDB.h"
#include "AxZedStateRepositoryUserExtensionFactory.h"
#include "AxZedXmlUtils.h"
#include "src/paramdb/DatabaseFixture.h"

#include <stdexcept>
#include <utility>

// What a host may do wrong in its own code: nulls, callbacks that throw. Nothing of it comes back as an exception.
namespace
{
struct NoStandardException
{
};

class HostileHost : public DatabaseFixture
{
protected:
    HostileHost()
    {
        put("m1.ope", record("(mass 1.0) (unknown 1)"));
        put("force.opd", database(entry(theTanks, "m1.ope") + entry(theTank, "m1.ope")));
    }
    bool loadsAndSaves()
    {
        AxSxpParameterDb forces;
        forces.init();
        return forces.loadAll(AxFilename(path("force.opd"))) && forces.save(AxFilename(path("new.opd")));
    }
};
} // namespace

TEST_F(HostileHost, SinksThatThrowAreHeardNoMore)
{
    AxDiagnostics::setSink([](AxDiagnostic const&) { throw std::runtime_error("sink"); });
    AxSinkScope const warn(AxWarn, [](std::string const&) { throw std::runtime_error("warn"); });
    AxSinkScope const info(AxInfo, [](std::string const&) { throw NoStandardException(); });
    AxSinkScope const verbose(AxVerbose, [](std::string const&) { throw 1; });
    EXPECT_TRUE(loadsAndSaves());
    EXPECT_FALSE(db.load(AxFilename(path("none.opd"))));
}

TEST_F(HostileHost, CreatorsThatThrowLeaveTheRecordOut)
{
    int thrown = 0;
    static int* counter = nullptr;
    counter = &thrown;
    AxZedObjectParameterFactory records;
    records.addCreatorFcn("zed-object-param",
                          [](AxEnvironmentPtr, AxEnvValuePtr*) -> AxZedObjectParameters*
                          {
                              if (++*counter % 2 != 0)
                              {
                                  throw std::runtime_error("creator");
                              }
                              throw NoStandardException();
                          });
    AxZedObjectParameters::setFactory(&records);
    EXPECT_TRUE(db.load(AxFilename(path("force.opd"))));
    for (int i = 0; i < 2; ++i)
    {
        findings.clear();
        EXPECT_FALSE(db.lookup(tank));
        EXPECT_FALSE(findings.empty());
    }
    AxZedObjectParameters::setFactory(&factory);
    EXPECT_TRUE(db.lookup(tank));
    EXPECT_EQ(thrown, 2);
    EXPECT_TRUE(db.load(AxFilename(path("force.opd"))));
    db.setRemoteConfigurationListCreatorFcn([](AxString const&, AxReaderWriterRegistry*) -> AxRemoteConfigurationList*
                                            { return nullptr; });
    EXPECT_FALSE(db.save(AxFilename(path("new.opd"))));
    db.setRemoteConfigurationListCreatorFcn([](AxString const&, AxReaderWriterRegistry*) -> AxRemoteConfigurationList*
                                            { throw std::bad_alloc(); });
    EXPECT_FALSE(db.load(AxFilename(path("force.opd"))));
    EXPECT_FALSE(db.save(AxFilename(path("new.opd"))));
    EXPECT_FALSE(boost::filesystem::exists(path("new.opd")));
}

TEST_F(HostileHost, HooksThatThrowEndTheSaveAndLeaveTheFiles)
{
    struct Throwing : AxSxpParameterDbWriter
    {
        void processPrePutSelfCb(AxReaderWriter*, std::string&) override { throw NoStandardException(); }
    };
    EXPECT_TRUE(db.loadAll(AxFilename(path("force.opd"))));
    std::string const before = files();
    db.setWriter(new Throwing);
    EXPECT_FALSE(db.save(AxFilename(path("force.opd"))));
    EXPECT_EQ(files(), before);
    db.setWriter(new AxSxpParameterDbWriter);
    EXPECT_TRUE(db.save(AxFilename(path("force.opd"))));
}

TEST_F(HostileHost, NoEntryLetsOutWhatCreatorsAndHooksThrow)
{
    put("gun.sys", "(gun (sensors (radar-signature-sensor-descriptor (r (component-type "
                   "\"radar-signature-sensor-descriptor\")))))");
    put("m.rules", "(rules (all-tasks-exclusive true))");
    auto const expectNothingOut = [this]
    {
        EXPECT_NO_THROW(made("zed-object-param"));
        EXPECT_NO_THROW(created(record("(mass 1.0)")));
        AxZedObjectParameters read("m1", nullptr);
        std::string const rules = "(task-execution-rules \"" + path("m.rules") + "\")";
        EXPECT_NO_THROW(readFrom(read, record("(sensors (radar-signature-sensor-descriptor (r))) " + rules)));
        EXPECT_NO_THROW(readCellsInto(read, record("(sensors (radar-signature-sensor-descriptor (r)))")));
        EXPECT_NO_THROW(read.fromXml("<platform name=\"m1\" mass=\"2\"/>"));
        AxComponentSystemDatabase systems;
        EXPECT_NO_THROW(systems.loadSystemDefinition(AxFilename(path("gun.sys")), {}));
        EXPECT_NO_THROW(read.toXml());
        EXPECT_NO_THROW(read.toXml(AxFilename(path("m1.xml"))));
        AxModelSet models("model-set", nullptr);
        EXPECT_NO_THROW(models.save(AxFilename(path("m.models"))));
        AxZedObjectParametersDB all("parameters", nullptr);
        all.init();
        EXPECT_NO_THROW(all.writeParameterFile(AxString(path("all.params"))));
        auto* const file = dynamic_cast<AxReaderWriterFile*>(read.registry()->lookup("task-execution-rules"));
        ASSERT_NE(file, nullptr);
        EXPECT_NO_THROW(file->load({}, {}));
        EXPECT_NO_THROW(file->save());
        EXPECT_TRUE(loadsAndSaves() || !findings.empty());
    };
    AxReaderWriter::setPrePutSelfCallback([](AxReaderWriter*, std::string&, void*) { throw NoStandardException(); },
                                          nullptr);
    expectNothingOut();
    AxReaderWriter::setPrePutSelfCallback(nullptr, nullptr);
    components.addCreatorFcn("radar-signature-sensor-descriptor",
                             [](auto const&...) -> AxComponentDescriptor* { throw NoStandardException(); });
    expectNothingOut();
    factory.addCreatorFcn("zed-object-param",
                          [](AxEnvironmentPtr, AxEnvValuePtr*) -> AxZedObjectParameters*
                          { throw NoStandardException(); });
    expectNothingOut();
    AxZedStateRepositoryUserExtensionFactory extensions;
    extensions.addCreator(AxZedStateRepositoryUserExtension::baseType(),
                          [](auto const&...) -> AxZedStateRepositoryUserExtension* { throw NoStandardException(); });
    auto* const former = AxZedStateRepositoryUserExtension::factory();
    AxZedStateRepositoryUserExtension::setFactory(&extensions);
    expectNothingOut();
    AxZedStateRepositoryUserExtension::setFactory(former);
}

TEST_F(HostileHost, SinksMayRemoveTheEntryThatIsRead)
{
    for (int i = 0; i < 4; ++i)
    {
        ASSERT_TRUE(db.load(AxFilename(path("force.opd"))));
        bool isRemoved = false;
        auto const remove = [&]
        {
            std::exchange(isRemoved, true) ? void()
            : i == 0                       ? db.remove(tank)
            : i == 1                       ? db.removeAll()
                                           : static_cast<void>(db.load(AxFilename(path("force.opd"))));
        };
        auto const sink = AxDiagnostics::setSink([&](AxDiagnostic const&) { remove(); });
        EXPECT_EQ(i < 3 ? db.lookup(tank) : entryOf(db, tank)->load(), nullptr);
        AxDiagnostics::setSink(sink);
        EXPECT_TRUE(isRemoved);
        EXPECT_EQ(db.numParameterEntries(), i == 0 ? 1 : i == 1 ? 0 : 2);
    }
}

TEST_F(HostileHost, OverridesMayRemoveTheEntryThatIsRead)
{
    struct Removing : AxSxpParameterDb
    {
        void updateReaderWriterFilePaths(AxZedObjectParameters& record) override { remove(record.objectType()); }
    };
    Removing old;
    old.init();
    ASSERT_TRUE(old.load(put("old.opd", database(entry(theTank, "m1.ope"), "(version 100)"))));
    EXPECT_EQ(old.lookup(tank), nullptr);
    EXPECT_EQ(old.numParameterEntries(), 0);
}

TEST_F(HostileHost, HooksMayRemoveTheEntryThatIsWritten)
{
    struct Removing : AxSxpParameterDbWriter
    {
        explicit Removing(AxSxpParameterDb& from) : forces(from) {}
        void processPrePutSelfCb(AxReaderWriter*, std::string&) override { forces.AxZedParameterDb::removeAll(); }
        AxSxpParameterDb& forces;
    };
    ASSERT_TRUE(db.loadAll(AxFilename(path("force.opd"))));
    std::string const before = files();
    db.setWriter(new Removing(db));
    EXPECT_FALSE(db.save(AxFilename(path("force.opd"))));
    EXPECT_EQ(files(), before);
    EXPECT_EQ(db.numParameterEntries(), 0);
}

TEST_F(HostileHost, WhatASaveTakesBackMayThrowToo)
{
    struct Entry : AxSxpParameterDbEntry
    {
        void setFilename(AxFilename const& file) override
        {
            if (!filename().isNull())
            {
                throw NoStandardException();
            }
            AxSxpParameterDbEntry::setFilename(file);
        }
    };
    struct Database : AxSxpParameterDb
    {
        void setVersionNumber(int version) override
        {
            if (throwsForVersions)
            {
                throw NoStandardException();
            }
            AxSxpParameterDb::setVersionNumber(version);
        }
        AxZedParameterDbEntry* createParameterEntry() const override { return new Entry; }
        bool throwsForVersions = false;
    };
    Database throwing;
    throwing.init();
    ASSERT_TRUE(throwing.loadAll(AxFilename(path("force.opd"))));
    std::string const before = files();
    for (bool const isOfVersion : {false, true})
    {
        throwing.throwsForVersions = isOfVersion;
        EXPECT_FALSE(throwing.save(AxFilename(path("new.opd"))));
        EXPECT_EQ(files(), before);
    }
}

TEST_F(HostileHost, NullsHaveADefinedResult)
{
    AxReaderWriter::factory()->copyReaderWriter(nullptr, nullptr);
    EXPECT_EQ(db.add(tank, nullptr), nullptr);
    EXPECT_EQ(db.lookup(tank, nullptr, nullptr), nullptr);
    EXPECT_EQ(db.lookupParameterDbEntry(tank, nullptr), nullptr);
    AxSxpParameterDbReader reader;
    AxSxpParameterDbWriter writer;
    EXPECT_FALSE(reader.loadParameterDb(AxFilename(path("force.opd")), nullptr));
    EXPECT_FALSE(writer.write(nullptr, AxFilename(path("x.opd")), AxFilename("x")));
    EXPECT_FALSE(writer.writeParameterFile(AxFilename(path("x.ope")), nullptr));
    db.setReader(nullptr);
    db.setWriter(nullptr);
    EXPECT_FALSE(db.load(AxFilename(path("force.opd"))));
    EXPECT_FALSE(db.save(AxFilename(path("x.opd"))));
    EXPECT_EQ(AxZedObjectParameters::createParameters(static_cast<char const*>(nullptr)), nullptr);
    EXPECT_EQ(AxComponentDescriptor::createComponentDescriptor(static_cast<char const*>(nullptr)), nullptr);
    AxDefaultParameterFactory::registerCreators(nullptr);
    AxDefaultComponentDescriptorFactory::registerCreators(nullptr);
    AxModelSet models("model-set", nullptr);
    EXPECT_EQ(models.addModel(nullptr, false), nullptr);
    AxRangeProbabilityTable table;
    EXPECT_FALSE(table.getProbabilities(AxEntityType(), 0.0, nullptr, nullptr));
    AxZedObjectParametersDB all(static_cast<char const*>(nullptr), nullptr);
    all.addParameters(nullptr);
    EXPECT_EQ(all.lookupParameters(tank, nullptr), nullptr);
    EXPECT_FALSE(AxZedXmlUtils::CreateZedXmlEnvironment(AxFilename(), false));
    EXPECT_TRUE(AxString(static_cast<char const*>(nullptr)).string().empty());
    EXPECT_TRUE(AxSymbolString(static_cast<char const*>(nullptr)).isNull());
    EXPECT_TRUE(AxFilename(static_cast<char const*>(nullptr)).isNull());
    AxWarn(nullptr);
}

TEST_F(HostileHost, TheSameReaderAgainAndNoListOfConfigurationsAreNoHarm)
{
    auto* const reader = new AxSxpParameterDbReader;
    auto* const writer = new AxSxpParameterDbWriter;
    for (int i = 0; i < 2; ++i)
    {
        db.setReader(reader);
        db.setWriter(writer);
    }
    EXPECT_TRUE(db.load(AxFilename(path("force.opd"))));
    EXPECT_TRUE(db.save(AxFilename(path("new.opd"))));
    AxSxpParameterDb plain;
    plain.setRemoteConfigurationListCreatorFcn({});
    plain.init();
    EXPECT_EQ(plain.remoteConfigurationList(), nullptr);
    EXPECT_TRUE(plain.load(AxFilename(path("new.opd"))));
    EXPECT_TRUE(plain.lookup(tank));
    EXPECT_TRUE(plain.save(AxFilename(path("newer.opd"))));
}

TEST_F(HostileHost, TwoDatabasesDoNotDisturbEachOther)
{
    put("other/m1.ope", record("(mass 2.0)"));
    put("other/force.opd", database(entry(theTanks, "m1.ope") + entry(theTank, "m1.ope")));
    AxSxpParameterDb other;
    other.init();
    EXPECT_TRUE(db.load(AxFilename(path("force.opd"))));
    EXPECT_TRUE(other.load(AxFilename(path("other/force.opd"))));
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_EQ(db.lookup(tank)->mass(), 1.0);
        EXPECT_EQ(other.lookup(tank)->mass(), 2.0);
    }
    other.lookup(tank)->setMass(3.0);
    EXPECT_TRUE(other.save(AxFilename(path("other/force.opd"))));
    EXPECT_EQ(db.lookup(tank)->mass(), 1.0);
    EXPECT_EQ(db.versionNumber(), 101);
    other.removeAll();
    EXPECT_EQ(db.lookup(tank)->mass(), 1.0);
    EXPECT_EQ(db.numParameterEntries(), 2);
    EXPECT_EQ(other.lookup(tank), nullptr);
}
