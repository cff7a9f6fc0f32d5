#include "AxAggregatedMovementDescriptor.h"

#include "AxRwProperties.h"
#include "AxRwTemplatedListPtr.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>
#include <memory>

using MobilityEntry = AxAggregatedMovementDescriptor::MobilityEntry;
using MobilityList = AxRwTemplatedListPtr<MobilityEntry, 1>;

TEST(AxAggregatedMovementDescriptor, DefaultsAreThereAndNotWritten)
{
    AxAggregatedMovementDescriptor const movement("move", nullptr);
    EXPECT_TRUE(movement.clampToGround());
    EXPECT_EQ(movement.retrogradeMovementPenalty(), 0.5);
    EXPECT_EQ(movement.movementType(), "ground");
    EXPECT_EQ(movement.supplyCheckPeriod(), 60.0);
    EXPECT_EQ(movement.minimumAirborneAgl(), 50.0);
    EXPECT_EQ(movement.defaultAgl(), 300.0);
    EXPECT_EQ(movement.writtenText().find("clamp-to-ground"), std::string::npos);
    EXPECT_NE(movement.writtenText(true).find("(clamp-to-ground true)"), std::string::npos);
}

TEST(AxAggregatedMovementDescriptor, RoundTripsAllKeywordsAndClones)
{
    char const* const text = "(move\n"
                             "  (component-descriptor-type \"aggregated-movement-actuator-descriptor\")\n"
                             "  (is-enabled true)\n"
                             "  (create-component true)\n"
                             "  (clamp-to-ground false)\n"
                             "  (retrograde-movement-penalty 0.25)\n"
                             "  (engineering-object-query-name \"bridges\")\n"
                             "  (engineering-object-obstacle-query-name \"ditches\")\n"
                             "  (movement-type \"air\")\n"
                             "  (supply-check-period 30.0)\n"
                             "  (minimum-airborne-agl 20.0)\n"
                             "  (default-agl 150.0))\n";
    AxAggregatedMovementDescriptor movement("move", nullptr);
    ASSERT_TRUE(readFrom(movement, text));
    EXPECT_EQ(movement.writtenText(), text);
    EXPECT_EQ(movement.engineeringObjectObstacleQueryName(), "ditches");
    std::unique_ptr<AxComponentDescriptor> const clone(movement.clone(nullptr));
    EXPECT_EQ(clone->writtenText(), text);
    EXPECT_NE(dynamic_cast<AxAggregatedMovementDescriptor*>(clone.get()), nullptr);
    movement.setDefaultAgl(151.0);
    EXPECT_FALSE(AxReaderWriterFactory::equalByType(movement, *clone));
}

TEST(AxAggregatedMovementDescriptor, MobilityListsStandAmongTheFreeValues)
{
    char const* const text = "(parameter-data\n"
                             "  (mobility AxAggregatedMovementDescriptor_MobilityEntrys\n"
                             "    (mobility-entry\n"
                             "      (terrain-type \"swamp\")\n"
                             "      (speed-factor 0.2))\n"
                             "    (mobility-entry\n"
                             "      (terrain-type \"lake\")\n"
                             "      (speed-factor 0.0)))\n"
                             "  (worst AxAggregatedMovementDescriptor_MobilityEntry\n"
                             "    (terrain-type \"lake\")\n"
                             "    (speed-factor 1.0)))\n";
    AxRwProperties properties("parameter-data", nullptr);
    ReportedFindings findings;
    ASSERT_TRUE(readFrom(properties, text));
    EXPECT_EQ(findings.codes(), "");
    EXPECT_EQ(properties.writtenText(), text);
    ASSERT_TRUE(properties.find("mobility"));
    auto* const list = dynamic_cast<MobilityList*>(properties.find("mobility")->rwValue());
    ASSERT_TRUE(list);
    EXPECT_EQ((*list->begin())->speedFactor(), 0.2);

    AxRwProperties const copy(properties);
    EXPECT_TRUE(copy == properties);
    MobilityEntry entry;
    entry.setTerrainType("road");
    list->add(entry);
    EXPECT_FALSE(copy == properties);
    EXPECT_NE(properties.writtenText().find("(mobility-entry\n      (terrain-type \"road\")"), std::string::npos);
}
