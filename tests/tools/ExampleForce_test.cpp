#include "AxAggregateObjectParameters.h"
#include "AxAmmoSelectTable.h"
#include "AxBallisticGunDescriptor.h"
#include "AxComponentSystemDefinition.h"
#include "AxComponentSystemDescriptor.h"
#include "AxDefaultComponentDescriptorFactory.h"
#include "AxDefaultParameterFactory.h"
#include "AxDmgMunitionTable.h"
#include "AxModelSet.h"
#include "AxMovingObjectParameters.h"
#include "AxObjectSensorDescriptor.h"
#include "AxRangeProbabilityTable.h"
#include "AxScriptEnableControllerDescriptor.h"
#include "AxSimulationObjectBaseState.h"
#include "AxSimulationObjectGroupModelSetEntry.h"
#include "AxSinkScope.h"
#include "AxSxpParameterDb.h"
#include "AxSxpParameterDbEntry.h"
#include "AxZedObjectParametersDB.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <list>
#include <memory>
#include <string>

namespace
{

std::string const theForce = ZEDOBJPARAM_SOURCE_DIR "/examples/force/";
AxObjectType const theTankType(1, 1, 225, 1, 1, 3, 0, 1);

/// What comes from the example directory must come without a warning.
class ExampleForce : public testing::Test
{
protected:
    ExampleForce()
    {
        AxComponentDescriptor::setFactory(&myDescriptors);
        AxZedObjectParameters::setFactory(&myRecords);
    }
    ~ExampleForce() override
    {
        EXPECT_EQ(myWarnings.text(), "");
        AxComponentDescriptor::setFactory(nullptr);
        AxZedObjectParameters::setFactory(nullptr);
    }

    static std::unique_ptr<AxSxpParameterDb> loadAll(std::string const& file)
    {
        auto database = std::make_unique<AxSxpParameterDb>();
        EXPECT_TRUE(database->init() && database->loadAll(AxFilename(file)));
        return database;
    }
    static void load(std::string const& file, AxReaderWriter& table)
    {
        AxReaderWriterFile member("table-file", nullptr);
        member.setContent(&table);
        member.setFilename(AxFilename(theForce + file));
        EXPECT_TRUE(member.load({}, {}));
    }

    AxDefaultParameterFactory myRecords;

private:
    AxSinkScope myWarnings{AxWarn};
    AxDefaultComponentDescriptorFactory myDescriptors;
};

TEST_F(ExampleForce, HitTableAnswersByRangeAndTarget)
{
    AxRangeProbabilityTable table("hit", nullptr);
    load("hit/gun-120mm.hit", table);
    AxPrbRangeTableEntry row;
    AxEntityType matched;
    EXPECT_TRUE(table.getProbabilities(AxEntityType(1, 1, 225, 6, 1, 7, 0), 1500.0, &row, &matched));
    EXPECT_EQ(row.probability("hit"), 0.78);
    EXPECT_EQ(matched, AxEntityType(1, 1, -1, -1, -1, -1, -1));
    EXPECT_TRUE(table.getProbabilities(AxEntityType(1, 1, 222, 1, 2, 6, 0), 2000.0, &row, &matched));
    EXPECT_DOUBLE_EQ(row.probability("hit"), 0.75) << "tanks have a line, 1.05 - 0.00015 r";
    EXPECT_FALSE(table.getProbabilities(AxEntityType(1, 3, 225, 4, 1, 1, 0), 100.0, &row, &matched));
}

TEST_F(ExampleForce, AmmunitionTableGivesSabotForTanksAndHeatForTheRest)
{
    AxAmmoSelectTable table("ammo", nullptr);
    load("ammoselect/gun-120mm.asl", table);
    auto const first = [&](AxEntityType const& target) {
        return static_cast<AxSimMunition const*>(AxRwList::element(table.simMunitionList(target).first()))
            ->munitionName();
    };
    EXPECT_EQ(first(AxEntityType(1, 1, 222, 1, 2, 6, 0)), "120mm-sabot");
    EXPECT_EQ(first(AxEntityType(1, 1, 222, 2, 2, 1, 0)), "120mm-heat");
}

TEST_F(ExampleForce, ArmorAnswersByMunitionSurfaceAngleAndMiss)
{
    std::unique_ptr<AxSxpParameterDb> const database = loadAll(theForce + "force.opd");
    AxComponentSystemDescriptor const* armor =
        database->lookup(theTankType)->systemDescriptorList().lookupComponentSystemDescriptor("armor");
    auto const& assessor = dynamic_cast<AxScriptEnableControllerDescriptor const&>(
        *armor->systemDefinition()->controllerDescriptorList().lookupComponentDescriptor("damage-assessor"));
    auto const& table = dynamic_cast<AxDmgMunitionTable const&>(*assessor.scriptVariables().find("damage")->rwValue());
    AxSimMunition heat;
    heat.setMunitionType(AxObjectType(2, 2, 225, 2, 13, 3, 0, 1));
    AxSimMunition sabot;
    sabot.setMunitionType(AxObjectType(2, 2, 225, 2, 13, 8, 0, 1));
    AxPrbRangeTableEntry row;
    EXPECT_TRUE(table.getProbabilities(sabot, "front", 50.0, 0.0, &row, true));
    EXPECT_EQ(row.probability("catastrophic"), 0.05) << "more than 45, up to 75 degrees";
    EXPECT_TRUE(table.getProbabilities(heat, "side", 10.0, 0.8, &row, true));
    EXPECT_EQ(row.probability("mobility"), 0.3) << "a near miss";
    EXPECT_TRUE(table.getProbabilities(heat, "side", 10.0, 2.0, &row, false));
    EXPECT_DOUBLE_EQ(row.probability("mobility"), 0.2) << "0.3 - 0.05 r";
    EXPECT_FALSE(table.getProbabilities(sabot, "side", 10.0, 2.0, &row, false)) << "a rod has no blast";
    EXPECT_EQ(table.getMaximumDamageRadius(heat), 8.0) << "where the line of the rear ends";
    EXPECT_EQ(table.getMaximumSuppressionRadius(heat), 25.0);
}

TEST_F(ExampleForce, SystemsTakeTheValuesThatTheRecordSets)
{
    std::unique_ptr<AxSxpParameterDb> const database = loadAll(theForce + "force.opd");
    AxZedObjectParameters const* tank = database->lookup(theTankType);
    ASSERT_NE(tank, nullptr);
    EXPECT_EQ(tank->minTickPeriod(), 0.1);
    auto const rangeOf = [&](char const* system)
    {
        AxComponentSystemDescriptor const* sight = tank->systemDescriptorList().lookupComponentSystemDescriptor(system);
        AxComponentDescriptor const* eye =
            sight->systemDefinition()->sensorDescriptorList().lookupComponentDescriptor("eye");
        return dynamic_cast<AxObjectSensorDescriptor const&>(*eye).sensorGeometry().maxRange();
    };
    EXPECT_EQ(rangeOf("sight"), 4000.0);
    EXPECT_EQ(rangeOf("commander-sight"), 4500.0);
}

TEST_F(ExampleForce, GunsOfOneDefinitionShareTheHitTableOfItsFile)
{
    std::unique_ptr<AxSxpParameterDb> const database = loadAll(theForce + "force.opd");
    for (AxObjectType const& type : {theTankType, AxObjectType(1, 1, 225, 1, 1, 1, 0, 1)})
    {
        AxComponentSystemDescriptor const* system =
            database->lookup(type)->systemDescriptorList().lookupComponentSystemDescriptor("main-gun");
        auto const& gun = dynamic_cast<AxBallisticGunDescriptor const&>(
            *system->systemDefinition()->actuatorDescriptorList().lookupComponentDescriptor("gun"));
        AxPrbRangeTableEntry row;
        EXPECT_TRUE(gun.hitProbabilityTable().getProbabilities(AxEntityType(1, 1, 222, 1, 2, 6, 0), 2000.0, &row));
        EXPECT_DOUBLE_EQ(row.probability("hit"), 0.75) << type.string().string();
    }
}

TEST_F(ExampleForce, UnitsTakeTheirPlacesFromFormationFiles)
{
    std::unique_ptr<AxSxpParameterDb> const database = loadAll(theForce + "force.opd");
    auto const* platoon =
        dynamic_cast<AxAggregateObjectParameters const*>(database->lookup(AxObjectType(1, 1, 225, 3, 2, 0, 0, 4)));
    ASSERT_NE(platoon, nullptr);
    AxString found;
    AxFormation const* wedge = platoon->getFormation("diamond", &found);
    ASSERT_NE(wedge, nullptr);
    EXPECT_EQ(found, "wedge") << "the default";
    EXPECT_EQ(wedge->offset(1), AxVector64(-50.0, 50.0, 0.0));
    EXPECT_EQ(wedge->offset(3), AxVector64(-150.0, 0.0, 0.0)) << "one step behind the last place";
    EXPECT_EQ(platoon->getFormation("column", nullptr)->numPositions(), 1);
}

TEST_F(ExampleForce, EachKindOfRecordAppearsAndEachSubordinateHasAnEntry)
{
    std::unique_ptr<AxSxpParameterDb> const database = loadAll(theForce + "force.opd");
    std::list<AxString> missing = myRecords.typeNames();
    for (AxListItem const* item = database->parameterList().first(); item != nullptr; item = item->next())
    {
        AxZedObjectParameters const& record = *static_cast<AxZedParameterDbEntry const*>(item->data())->parameters();
        missing.remove(record.parameterType());
        for (AxZedSubObjectParameterEntry const* subordinate : *record.subordinateObjects())
        {
            AxObjectType matched;
            EXPECT_NE(database->lookup(subordinate->objectType(), &matched), nullptr);
            EXPECT_EQ(matched, subordinate->objectType()) << "exactly, by no pattern";
        }
    }
    EXPECT_EQ(missing, std::list<AxString>{});
}

TEST_F(ExampleForce, ComesBackEqualFromASave)
{
    std::filesystem::path const copy =
        std::filesystem::path(ZEDOBJPARAM_BINARY_DIR) / "example-force-copy"; // one for each checkout
    std::filesystem::remove_all(copy);
    std::filesystem::copy(theForce, copy, std::filesystem::copy_options::recursive);
    std::unique_ptr<AxSxpParameterDb> const original = loadAll((copy / "force.opd").string());
    EXPECT_TRUE(original->save(AxFilename((copy / "saved.opd").string())));
    std::unique_ptr<AxSxpParameterDb> const saved = loadAll((copy / "saved.opd").string());

    EXPECT_EQ(saved->numParameterEntries(), 64);
    for (AxListItem const* item = original->parameterList().first(); item != nullptr; item = item->next())
    {
        auto const& entry = *static_cast<AxZedParameterDbEntry const*>(item->data());
        AxZedObjectParameters const* record = saved->lookup(entry.objectType());
        ASSERT_NE(record, nullptr) << entry.objectType().string().string();
        EXPECT_TRUE(record->equals(*entry.parameters())) << entry.objectType().string().string();
    }
    std::filesystem::remove_all(copy);
}

TEST_F(ExampleForce, EachModelHasAnEntryAndEachObjectOfAGroupAModel)
{
    AxModelSet models("model-set", nullptr);
    ASSERT_TRUE(models.load(AxFilename(theForce + "force.models")));
    auto const database = loadAll(theForce + "force.opd");
    for (AxModelSetEntry* model : models)
    {
        auto* group = dynamic_cast<AxSimulationObjectGroupModelSetEntry*>(model);
        if (group == nullptr)
        {
            EXPECT_NE(database->lookupParameterDbEntry(model->objectType(), nullptr), nullptr)
                << model->label().string();
            continue;
        }
        ASSERT_TRUE(group->readAllSimulationObject());
        EXPECT_EQ(group->simulationObjects().size(), 4U);
        EXPECT_EQ(models.findMatchingPattern(group->simulationObjects()[1]->objectType())->label(), "M1A2");
        AxSimulationObjectGroupModelSetEntry inFile("", nullptr);
        ASSERT_TRUE(inFile.load(AxFilename(theForce + "groups/tank-patrol.sog")));
        EXPECT_EQ(inFile.objectType(), group->objectType());
    }
}

TEST_F(ExampleForce, EntityFilesHoldTheSameForce)
{
    std::unique_ptr<AxSxpParameterDb> const texts = loadAll(theForce + "force.opd");
    std::unique_ptr<AxSxpParameterDb> const entities = loadAll(theForce + "entities.opd");
    EXPECT_EQ(entities->numParameterEntries(), texts->numParameterEntries());
    for (AxListItem const* item = texts->parameterList().first(); item != nullptr; item = item->next())
    {
        auto const& entry = *static_cast<AxZedParameterDbEntry const*>(item->data());
        AxObjectType matched;
        AxZedObjectParameters const* record = entities->lookup(entry.objectType(), &matched);
        ASSERT_NE(record, nullptr) << entry.objectType().string().string();
        EXPECT_EQ(matched, entry.objectType());
        EXPECT_TRUE(record->equals(*entry.parameters())) << matched.string().string();
        EXPECT_EQ(record->writtenText(), entry.parameters()->writtenText());
        EXPECT_EQ(record->writtenText(true), entry.parameters()->writtenText(true));
        EXPECT_EQ(record->parameterType(), entry.parameters()->parameterType());
    }
}

TEST_F(ExampleForce, CollectionPassesValuesDown)
{
    AxZedObjectParametersDB collection("parameter-list", nullptr);
    ASSERT_TRUE(collection.init() && collection.readParameterFile(theForce + "collection.params"));
    auto const* tank = dynamic_cast<AxMovingObjectParameters const*>(collection.lookupParameters(theTankType, nullptr));
    ASSERT_NE(tank, nullptr);
    EXPECT_EQ(tank->mass(), 62100.0);
    EXPECT_EQ(tank->maxSpeed(), 18.6) << "from the M1";
    EXPECT_EQ(tank->category(), "tank") << "from the tank, through the M1";
    EXPECT_EQ(tank->deadReckoningThresholds().translationThreshold(), 0.25);
    EXPECT_EQ(tank->deadReckoningThresholds().rotationThreshold(), 2.0);
}
} // namespace
