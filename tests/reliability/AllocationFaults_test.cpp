#include "Allocations.h"
#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"
#include "AxModelSet.h"
#include "AxRangeProbabilityTable.h"
#include "AxReaderWriterFile.h"
#include "AxSimulationObjectGroupModelSetEntry.h"
#include "AxZedObjectParametersDB.h"
#include "AxZedXmlUtils.h"
#include "src/paramdb/DatabaseFixture.h"
#include "src/paramdb/DatabaseWalk.h"

#include <functional>
#include <random>

namespace
{
using Reach = AllocationFault::Reach;

// Sanitizers take their time; the plain build lets every single one fail.
std::size_t const theStep = std::getenv("ZEDOBJPARAM_ROUNDS") ? 1 : ZEDOBJPARAM_SHARE;

/// Entries that come, go and are asked for, and what is to come of it by the walk.
class ComingAndGoing
{
public:
    ComingAndGoing()
    {
        std::mt19937 source(3);
        auto const below = [&source](unsigned bound) { return static_cast<int>(source() % bound); };
        for (int number = 0; number < 300; ++number)
        {
            AxObjectType const type(1, below(2), 225, below(number < 200 ? 12 : 3) - 1, below(4) - 1, 1, below(3) - 2);
            // First many, then single ones.
            int const kind = number < 80 ? 0 : number < 120 ? below(10) < 8 ? 0 : 3 : below(4);
            Step step{kind, type, nullptr};
            if (kind == 0 || kind == 1)
            {
                step.entry = newEntry(type, below(3) == 0);
                myWalk.insert(step.entry);
            }
            else if (kind == 2)
            {
                myWalk.remove(type);
            }
            else
            {
                step.expected = myWalk.found(type);
            }
            mySteps.push_back(step);
        }
    }

    /// Allocates nothing itself.
    bool isHeldBy(WalkedDatabase& database)
    {
        bool isHeld = true;
        for (Step const& step : mySteps)
        {
            if (step.entry)
            {
                database.addParameterDbEntry(step.entry);
            }
            else if (step.kind == 2)
            {
                database.remove(step.type);
            }
            else
            {
                isHeld = database.found(step.type) == step.expected && isHeld;
            }
        }
        std::size_t count = 0;
        for (AxListItem const* item = database.parameterList().first(); item; item = item->next())
        {
            isHeld = count < myWalk.entries.size() && item->data() == myWalk.entries[count++] && isHeld;
        }
        database.removeAll();
        return isHeld && count == myWalk.entries.size() && database.numParameterEntries() == 0;
    }

private:
    struct Step
    {
        int kind; // 0, 1: comes; 2: goes; 3: is asked for
        AxObjectType type;
        AxZedParameterDbEntry* entry;
        AxZedParameterDbEntry const* expected = nullptr;
    };
    Walk myWalk;
    std::vector<Step> mySteps;
};

/// Lets every single allocation of a job fail, and all from every one on. The job runs on an object of its own, says
/// whether it succeeded, and must do so when it is repeated with the same object.
class AllocationFaults : public DatabaseFixture
{
protected:
    using Job = std::function<bool()>;

    AllocationFaults()
    {
        put("force/m1.ope", "(m1 (parameter-type \"zed-object-param\") (mass 60000.0) (display-name \"M1 $(camp)\")\n"
                            "  (systems (gun (system-definition \"../systems/gun.sys\")))\n"
                            "  (resources (fuel 10 20)) (bounding-volume 1.0 2.0)\n"
                            "  (initial-sector-of-responsibility (sector-center 1.0) (sector-size 2.0))\n"
                            "  (unknown (to us)) (local-objects (state-repository \"here\")))\n");
        put("systems/gun.sys", "(system-definition (sensors (visual-sensor (component-descriptor-type "
                               "\"object-sensor-descriptor\") (maximum-range 5.0))))\n");
        put("force.opd", database(entry(theTanks, "force/m1.ope") + entry(theTank, "force/m1.ope"),
                                  "(variable-bindings (camp \"red\")) (version 101) (unknown \"item\")"));
        put("a.hit", "(hits (entity-range (entity-type 1 1 -1 -1 -1 -1 -1) (range-determinant (range-list "
                     "(range-entry 500.0 (hit 0.5))))) (unknown 1))\n");
        put("a.models", "(model-set (comment \"all\") (model-set-entry (object-type 1 1 1 225 1 1 3 0) "
                        "(label \"M1\") (categories \"tanks\" \"new\")))\n");
        put("a.params", "(sim-object-parameters (tank-parameters (object-type 1 1 1 225 1 1 3 0) (parameter-type "
                        "\"zed-object-param\") (mass 1.0)))\n");
        // What the files hold that nobody knows is told without a failure, too.
        AxDiagnostics::setSink([this](AxDiagnostic const& finding)
                               { told += finding.code == "unknown-keyword" ? 0 : 1; });
    }

    /// `begin` makes the object; what it answers is the job. It sets `text` to what shows all that the object holds.
    void hold(std::function<Job()> const& begin)
    {
        ASSERT_TRUE(begin()());
        std::string const whole = text();
        for (Reach const reach : {Reach::One, Reach::AllFromThere})
        {
            for (std::size_t n = 1;; n += n < 20 ? 1 : theStep)
            {
                SCOPED_TRACE((reach == Reach::One ? "only " : "from ") + std::to_string(n));
                Job job = begin();
                bool isDone = false;
                told = 0;
                warnings.clear();
                try
                {
                    AllocationFault const fault(n, reach);
                    isDone = job();
                }
                catch (std::exception const& error)
                {
                    ADD_FAILURE() << error.what();
                }
                if (!AllocationFault::wasHit())
                {
                    EXPECT_TRUE(isDone);
                    break;
                }
                told += warnings.text().find("llocation failed") != std::string::npos ? 1 : 0;
                EXPECT_TRUE(told > 0 || reach == Reach::AllFromThere || (isDone && text() == whole));
                EXPECT_TRUE(job()) << "when it is repeated";
                warnings.clear();
                news.clear();
                if (HasFailure())
                {
                    return;
                }
            }
        }
    }

    /// Holds the look-up of the tank in a database that `fill` has made ready.
    void holdLookup(std::function<void(AxSxpParameterDb&)> const& fill)
    {
        hold(
            [&]() -> Job
            {
                auto const forces = std::make_shared<AxSxpParameterDb>();
                forces->init();
                fill(*forces);
                EXPECT_TRUE(forces->lookupParameterDbEntry(tank, nullptr));
                text = [this, forces] { return forces->lookup(tank)->writtenText(true); };
                return [this, forces] { return forces->lookup(tank) != nullptr; };
            });
    }

    int told = 0;
    std::function<std::string()> text;
};
} // namespace

TEST_F(AllocationFaults, RecordOfADatabase)
{
    holdLookup([this](AxSxpParameterDb& forces) { forces.load(AxFilename(path("force.opd"))); });
}

TEST_F(AllocationFaults, RecordOfTheExample)
{
    if (!std::getenv("ZEDOBJPARAM_ROUNDS"))
    {
        GTEST_SKIP() << "the long form";
    }
    holdLookup([](AxSxpParameterDb& forces)
               { forces.load(AxFilename(ZEDOBJPARAM_SOURCE_DIR "/examples/force/force.opd")); });
}

TEST_F(AllocationFaults, RecordOfAnEntityFile)
{
    AxFilename const file =
        put("m1.entity", "<simObject name=\"m1\">\n"
                         "  <variableBindings name=\"variable-bindings\">\n"
                         "    <variable name=\"camp\" value=\"red\"/>\n"
                         "  </variableBindings>\n"
                         "  <objectType name=\"objectType\" value=\"1:1:1:225:1:1:3:0\"/>\n"
                         "  <platform name=\"m1\" parameter-type=\"ground-vehicle-param\" mass=\"62100.0\"\n"
                         "    display-name=\"$camp\" unknown=\"to us\"/>\n"
                         "</simObject>\n");
    holdLookup([&](AxSxpParameterDb& forces) { forces.add(tank, file, false, nullptr); });
}

// What the tests above read is plain XML, of which the parser sees nothing.
TEST_F(AllocationFaults, TheXmlParser)
{
    std::string const declared = "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n<!DOCTYPE simObject>\n";
    std::string const plain = "<simObject name=\"m1\"><?by hand?><objectType value=\"1:1:1:225:1:1:3:0\"/>"
                              "<platform parameter-type=\"ground-vehicle-param\" display-name=\"M1 \xe4\" "
                              "mass=\"1.0\"/><![CDATA[text]]><!-- " +
                              std::string(3000, '-').replace(1, 2998, 2998, 'c') + " --></simObject>\n";
    AxFilename const file = put("m1.entity", declared + plain);
    AxString const content = get("m1.entity");
    std::size_t const before = parserAllocationCount();
    for (bool const isFile : {false, true})
    {
        hold(
            [&]() -> Job
            {
                auto const tree = std::make_shared<AxEnvironmentPtr>();
                text = [tree]
                {
                    std::string written;
                    AxEnvXMLWriter().writeText(*tree, written);
                    return written;
                };
                return [&, tree, isFile]
                {
                    bool isRead = false;
                    *tree = isFile ? AxEnvXMLReader::readFile(file, &isRead)
                                   : AxEnvXMLReader::readText(content.string(), file, &isRead);
                    EXPECT_EQ(isRead, *tree != nullptr);
                    return isRead;
                };
            });
    }
    EXPECT_GT(parserAllocationCount(), before + 1000);
    for (char const* const refused : {"<!DOCTYPE a [<!ENTITY b \"c\">]><a/>", "<!DOCTYPE a SYSTEM \"d\"><a>&b;</a>",
                                      "<?xml version=\"1.0\" encoding=\"none-such\"?><a/>", "<a><b></a>"})
    {
        hold(
            [&]() -> Job
            {
                text = [] { return std::string(); };
                return [this, &file, refused]
                {
                    int const toldBefore = told;
                    return !AxEnvXMLReader::readText(refused, file) && told > toldBefore;
                };
            });
    }
}

TEST_F(AllocationFaults, FilesThatNeedTheXmlParser)
{
    AxFilename const file =
        put("m1.entity", "<simObject name=\"m1\"><?by hand?>\n"
                         "  <variableBindings name=\"variable-bindings\">\n"
                         "    <variable name=\"camp\" value=\"red\"/>\n"
                         "  </variableBindings>\n"
                         "  <objectType name=\"objectType\" value=\"1:1:1:225:1:1:3:0\"/>\n"
                         "  <platform name=\"m1\" parameter-type=\"ground-vehicle-param\" mass=\"62100.0\"\n"
                         "    display-name=\"$camp\" unknown=\"to us\"/>\n"
                         "</simObject>\n");
    std::size_t const before = parserAllocationCount();
    holdLookup([&](AxSxpParameterDb& forces) { forces.add(tank, file, false, nullptr); });
    AxFilename const recordFile = put("m1.xml", made("ground-vehicle-param")->toXml().string() + "<?by hand?>\n");
    for (bool const isFile : {false, true})
    {
        AxString const content(get("m1.xml"));
        hold(
            [&]() -> Job
            {
                std::shared_ptr<AxZedObjectParameters> const read = made("ground-vehicle-param");
                text = [read] { return read->writtenText(true); };
                return [read, content, recordFile, isFile]
                { return isFile ? read->fromXmlFile(recordFile) : read->fromXml(content); };
            });
    }
    AxFilename const group = put("a.sog", "<?by hand?><simulationObjectGroup label=\"Patrol\">"
                                          "<AxSimulationObjectEntityState label=\"Red 1\"/></simulationObjectGroup>\n");
    hold(
        [&]() -> Job
        {
            auto const read = std::make_shared<AxSimulationObjectGroupModelSetEntry>("group", nullptr);
            text = [read] { return read->writtenText(true); };
            return [read, group] { return read->load(group); };
        });
    EXPECT_GT(parserAllocationCount(), before + 1000);
}

TEST_F(AllocationFaults, EntriesComeGoAndAreFoundWithoutMemory)
{
    for (Reach const reach : {Reach::One, Reach::AllFromThere})
    {
        bool isHit = true;
        for (std::size_t n = 1; isHit; n += theStep * theStep)
        {
            ComingAndGoing all;
            WalkedDatabase database;
            bool isHeld = false;
            {
                AllocationFault const fault(n, reach);
                isHeld = all.isHeldBy(database);
            }
            isHit = AllocationFault::wasHit();
            ASSERT_TRUE(isHeld) << (reach == Reach::One ? "only " : "from ") << n;
        }
    }
    EXPECT_EQ(warned(), "");
}

TEST_F(AllocationFaults, DatabaseFile)
{
    std::string entries =
        entry(theTanks, "force/m1.ope") + entry(theTank, "force/m1.ope") +
        "(parameter-entry (object-type 1 1 1 225 1 2 3 0) (filename \"$(camp)/m1.ope\") (unknown 1))\n";
    for (int number = 0; number < 20; ++number)
    {
        entries += entry("1 1 1 " + std::to_string(40 - number) + " 1 1 -1 -1", "a-name-that-is-not-short.ope");
    }
    AxObjectType const other = typeOf("1:1:1:30:1:1:5:5");
    AxFilename const file = put("many.opd", database(entries, "(variable-bindings (camp \"red\")) (version 101)"));
    hold(
        [&]() -> Job
        {
            auto const forces = std::make_shared<AxSxpParameterDb>();
            forces->init();
            text = [forces] { return std::to_string(forces->numParameterEntries()); };
            return [this, forces, file, other]
            {
                forces->removeAll();
                if (!forces->load(file) || forces->numParameterEntries() != 23)
                {
                    return false;
                }
                AxObjectType found;
                bool const isFound = forces->lookupParameterDbEntry(other, &found) && found.country() == 30 &&
                                     entryOf(*forces, tank)->objectType() == tank;
                forces->remove(tank);
                return isFound && entryOf(*forces, tank)->objectType() == tanks;
            };
        });
}

TEST_F(AllocationFaults, FilesThatStandAlone)
{
    struct Table
    {
        AxRangeProbabilityTable table{"hits", nullptr};
        AxReaderWriterFile file{"hit-file", nullptr};
    };
    AxFilename const modelFile(path("a.models"));
    AxString const collectionFile(path("a.params"));
    AxFilename const tableFile(path("a.hit"));
    hold(
        [&]() -> Job
        {
            auto const read = std::make_shared<Table>();
            read->file.setContent(&read->table);
            read->file = tableFile;
            AxReaderWriterFile::clearFileCache();
            text = [read] { return read->table.writtenText(true); };
            return [read] { return read->file.load({}, {}) && read->table.count() == 1; };
        });
    hold(
        [&]() -> Job
        {
            auto const models = std::make_shared<AxModelSet>("model-set", nullptr);
            text = [models] { return models->writtenText(true); };
            return [models, modelFile] { return models->load(modelFile); };
        });
    hold(
        [&]() -> Job
        {
            auto const all = std::make_shared<AxZedObjectParametersDB>("parameter-list", nullptr);
            all->init();
            text = [all] { return all->writtenText(true); };
            return [all, collectionFile] { return all->readParameterFile(collectionFile); };
        });
}

TEST_F(AllocationFaults, DatabaseOfNamesRelativeToTheApplication)
{
    AxFilename const file = put("old.opd", database(entry(theTank, "old.ope"), "(version 100)"));
    put("old.ope", record("(task-execution-rules-file \"" + put("rules.tsk", "(rules)").string().string() + "\")"));
    holdLookup([&](AxSxpParameterDb& forces) { forces.load(file); });
}

TEST_F(AllocationFaults, SaveOfADatabase)
{
    AxFilename const file(path("new.opd"));
    hold(
        [&]() -> Job
        {
            auto const forces = std::make_shared<AxSxpParameterDb>();
            forces->init();
            forces->loadAll(AxFilename(path("force.opd")));
            text = [this] { return get("new.opd"); };
            return [forces, file] { return forces->save(file); };
        });
}

TEST_F(AllocationFaults, GroupsAndEntityFilesOfModels)
{
    AxFilename const group = put("models/a.sog", "<simulationObjectGroup label=\"Patrol of tanks at dawn\">"
                                                 "<AxSimulationObjectEntityState label=\"Red 1\"/>"
                                                 "</simulationObjectGroup>\n");
    put("models/a.entity", "<simObject name=\"m1\"><objectType value=\"1:1:1:225:1:1:3:0\"/>"
                           "<guiInformation name=\"gui\" label=\"Tank with a name that is not short\"/></simObject>\n");
    AxFilename const directory(path("models"));
    AxFilename const saved(path("new.sog"));
    hold(
        [&]() -> Job
        {
            auto const read = std::make_shared<AxSimulationObjectGroupModelSetEntry>("group", nullptr);
            text = [this] { return get("new.sog"); };
            return [read, group, saved] { return read->load(group) && read->save(saved); };
        });
    AxFilename const set = put("named.models", "(model-set (simulation-object-group (label \"Patrol\") "
                                               "(filename \"models/a.sog\")))");
    hold(
        [&]() -> Job
        {
            auto const models = std::make_shared<AxModelSet>("model-set", nullptr);
            EXPECT_TRUE(models->load(set));
            auto* const named = models->findSimulationObjectGroup("Patrol");
            text = [models, named] { return std::to_string(named->simulationObjects().size()); };
            return [models, named] { return named->readAllSimulationObject() && named->save(); };
        });
    hold(
        [&]() -> Job
        {
            auto const models = std::make_shared<AxModelSet>("model-set", nullptr);
            text = [models] { return models->writtenText(); };
            return [models, directory]
            {
                return models->loadEntityFiles(directory) && models->loadSimulationObjectGroupFiles(directory) &&
                       models->count() >= 2; // what was taken before the failure is taken again
            };
        });
}

TEST_F(AllocationFaults, ReaderAndWriterByThemselves)
{
    AxFilename const file(path("force.opd"));
    AxFilename const saved(path("saved.opd"));
    AxFilename const recordFile(path("single.ope"));
    AxFilename const records(".\\saved");
    AxFilename const elsewhere(path("elsewhere"));
    auto const loaded = [&file](bool isReadAll)
    {
        auto const forces = std::make_shared<AxSxpParameterDb>();
        forces->init();
        EXPECT_TRUE(isReadAll ? forces->loadAll(file) : forces->load(file));
        return forces;
    };
    hold(
        [this]() -> Job
        {
            auto const forces = std::make_shared<AxSxpParameterDb>();
            text = [] { return std::string(); };
            return [forces] { return forces->init(); };
        });
    hold(
        [&]() -> Job
        {
            auto const forces = std::make_shared<AxSxpParameterDb>();
            auto const reader = std::make_shared<AxSxpParameterDbReader>();
            forces->init();
            text = [forces] { return std::to_string(forces->numParameterEntries()); };
            return [forces, reader, &file]
            {
                forces->removeAll();
                return reader->loadParameterDb(file, forces.get());
            };
        });
    hold(
        [&]() -> Job
        {
            auto const forces = loaded(true);
            auto const writer = std::make_shared<AxSxpParameterDbWriter>();
            text = [this] { return get("saved.opd"); };
            return [forces, writer, &saved, &records] { return writer->write(forces.get(), saved, records); };
        });
    hold(
        [&]() -> Job
        {
            auto const forces = loaded(true);
            auto const writer = std::make_shared<AxSxpParameterDbWriter>();
            AxZedObjectParameters* const record = forces->lookup(tank);
            text = [this] { return get("single.ope"); };
            return [forces, writer, record, &recordFile] { return writer->writeParameterFile(recordFile, record); };
        });
    hold(
        [&]() -> Job
        {
            auto const forces = loaded(false);
            text = [forces] { return std::to_string(forces->dependentParameterFileToCopyPairs().size()); };
            return [forces, &elsewhere] { return forces->addUnloadedFilesToCopyPairs(elsewhere) == 2; };
        });
}

TEST_F(AllocationFaults, ModelsElementsAndRowsByThemselves)
{
    AxFilename const tableFile(path("a.hit"));
    AxFilename const entities = put("m1.entity", "<entities><simObject name=\"m1\">\n"
                                                 "<objectType name=\"objectType\" value=\"1:1:1:225:1:1:3:0\"/>\n"
                                                 "</simObject></entities>\n");
    for (bool const isCopied : {false, true})
    {
        hold(
            [&]() -> Job
            {
                auto const models = std::make_shared<AxModelSet>("model-set", nullptr);
                auto const model = std::make_shared<std::unique_ptr<AxModelSetEntry>>(
                    std::make_unique<AxModelSetEntry>(AxSymbolString(), nullptr));
                (*model)->setObjectType(tank);
                (*model)->setLabel("A tank with a name that is not short");
                (*model)->categories().add("A category with a name that is not short");
                AxModelSetEntry* const entry = model->get();
                text = [models] { return models->writtenText() + models->categories().begin()->string(); };
                return [models, model, entry, isCopied]
                {
                    AxModelSetEntry* const added = models->addModel(entry, isCopied);
                    if (added == entry)
                    {
                        static_cast<void>(model->release()); // now the set's
                    }
                    return added != nullptr && models->count() == 1;
                };
            });
    }
    hold(
        [&]() -> Job
        {
            AxEnvironmentPtr const env = AxZedXmlUtils::CreateZedXmlEnvironment(entities, true);
            auto const found = std::make_shared<std::list<AxEnvValuePtr>>();
            text = [found] { return std::to_string(found->size()); };
            return [env, found]
            {
                found->clear();
                AxZedXmlUtils::getObjectElements(env, *found);
                return found->size() == 1;
            };
        });
    for (bool const isMatchType : {false, true})
    {
        hold(
            [&]() -> Job
            {
                AxEnvironmentPtr const env = AxZedXmlUtils::CreateZedXmlEnvironment(entities, true);
                text = [] { return std::string(); };
                return [this, env, isMatchType]
                {
                    return isMatchType ? !AxZedXmlUtils::findObjectElementByMatchType(env, tank)
                                       : AxZedXmlUtils::findObjectElementByObjectType(env, tank) != nullptr;
                };
            });
    }
    hold(
        [&]() -> Job
        {
            auto const table = std::make_shared<AxRangeProbabilityTable>("hits", nullptr);
            AxReaderWriterFile file("hit-file", nullptr);
            file.setContent(table.get());
            file = tableFile;
            EXPECT_TRUE(file.load({}, {}));
            file.setContent(nullptr);
            auto const row = std::make_shared<AxPrbRangeTableEntry>("row", nullptr);
            AxEntityType const type(1, 1, 225, 1, 1, 3, 0);
            text = [row] { return row->writtenText(true); };
            return [table, row, type] { return table->getProbabilities(type, 100.0, row.get(), nullptr); };
        });
}

TEST_F(AllocationFaults, WhatIsNotYetMadeOfATreeIsMadeLater)
{
    AxFilename const file = put("m1.entity", "<entities><simObject name=\"m1\">\n"
                                             "<objectType name=\"objectType\" value=\"1:1:1:225:1:1:3:0\"/>\n"
                                             "<platform name=\"m1\" parameter-type=\"ground-vehicle-param\"/>\n"
                                             "</simObject></entities>\n");
    bool isHit = true;
    for (std::size_t n = 1; isHit; ++n)
    {
        AxEnvironmentPtr const env = AxZedXmlUtils::CreateZedXmlEnvironment(file, true);
        try
        {
            AllocationFault const fault(n, Reach::One);
            AxZedXmlUtils::findObjectElementByObjectType(env, tank);
        }
        catch (std::bad_alloc const&)
        {
        }
        isHit = AllocationFault::wasHit();
        EXPECT_TRUE(AxZedXmlUtils::findObjectElementByObjectType(env, tank)) << n;
    }
}
