#include "AxSinkScope.h"
#include "AxTargetAcquireCriteria.h"
#include "AxTargetSelectionCriteria.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>

TEST(AxTargetPriorityList, ExactTypeWinsElseTheLastFittingPattern)
{
    AxTargetPriorityList list("target-priorities", nullptr);
    list.addTargetPriorityEntry(AxEntityType(1, 1, 225, 1, 1, 3, 0))->setPriority(7);
    list.addTargetPriorityEntry(AxEntityType(1, 1, 225, -1, -1, -1, -1))->setPriority(5);
    AxTargetPriorityEntry general;
    general.setEntityType({1, 1, -1, -1, -1, -1, -1});
    general.setPriority(3);
    list.addTargetPriorityEntry(general);

    AxEntityType matched;
    EXPECT_EQ(list.priority({1, 1, 225, 1, 1, 3, 0}, &matched), 7);
    EXPECT_EQ(matched, AxEntityType(1, 1, 225, 1, 1, 3, 0));
    EXPECT_EQ(list.priority({1, 1, 225, 1, 1, 2, 0}, &matched), 3);
    EXPECT_EQ(matched, general.entityType());

    AxSinkScope verbose(AxVerbose);
    EXPECT_EQ(list.priority({1, 2, 225, 1, 1, 1, 0}, &matched), -1);
    EXPECT_EQ(matched, general.entityType());
    EXPECT_EQ(verbose.text(), "No target priority found for 1 2 225 1 1 1 0\n");
}

TEST(AxTargetPriorityList, IsWrittenUnderItsElementWord)
{
    AxTargetPriorityList list("target-priorities", nullptr);
    readFrom(list, "(target-priorities (x (entity-type 1 1 1 1 1 1 1) (priority 2)))");
    EXPECT_EQ(list.writtenText(), "(target-priorities\n"
                                  "  (entity-priority\n"
                                  "    (entity-type 1 1 1 1 1 1 1)\n"
                                  "    (priority 2)))\n");
    AxTargetPriorityList const copy(list);
    EXPECT_TRUE(copy == list);
    EXPECT_EQ(copy.writtenText(), list.writtenText());
}

TEST(AxTargetSelectionCriteria, NewOneWritesItsTwoLimits)
{
    AxTargetSelectionCriteria const criteria("c", nullptr);
    EXPECT_EQ(criteria.writtenText(), "(c\n  (max-targets -1)\n  (fire-with-spot-report-only false))\n");
}

TEST(AxTargetSelectionCriteria, RoundTripsAndCopies)
{
    AxTargetSelectionCriteria criteria("c", nullptr);
    criteria.priorityList().addTargetPriorityEntry(AxEntityType(1, 1, 1, 1, 1, 1, 1))->setPriority(4);
    criteria.setMaxTargets(3);
    criteria.setFireWithSpotReportOnly(true);
    readFrom(criteria.targetRegion(), "(target-region (sphere-filter (max-range 300.0)))");
    AxTargetSelectionCriteria again("c", nullptr);
    readFrom(again, criteria.writtenText());
    EXPECT_TRUE(again == criteria);
    AxTargetSelectionCriteria const copy(criteria);
    EXPECT_EQ(copy.writtenText(), criteria.writtenText());
    EXPECT_EQ(copy.targetRegion().maxRange(), 300.0);
    again.setMaxTargets(4);
    EXPECT_FALSE(again == criteria);
}

TEST(AxTargetAcquireCriteria, NewOneWritesItsSixLimits)
{
    AxTargetAcquireCriteria const criteria("c", nullptr);
    EXPECT_EQ(criteria.writtenText(), "(c\n"
                                      "  (check-maximum-speed-to-acquire true)\n"
                                      "  (max-speed-of-target 10.0)\n"
                                      "  (check-elevation-angle-to-acquire false)\n"
                                      "  (max-elevation-angle-to-acquire 1.5)\n"
                                      "  (check-elevation-to-acquire false)\n"
                                      "  (max-elevation-to-acquire 500.0))\n");
}

TEST(AxTargetAcquireCriteria, EachSetterReachesItsKeyword)
{
    AxTargetAcquireCriteria criteria("c", nullptr);
    criteria.setEntityType({1, 2, 3, 4, 5, 6, 7});
    criteria.setTimeToAcquire(2.5);
    criteria.setCheckSpeed(false);
    criteria.setMaxTargetSpeedToAcquire(11.0);
    criteria.setCheckAngleToTarget(true);
    criteria.setMaxElevAngleToAcquire(0.5);
    criteria.setCheckElevation(true);
    criteria.setMaxElevToAcquire(750.0);
    std::string const text = criteria.writtenText();
    EXPECT_EQ(text, "(c\n"
                    "  (entity-type 1 2 3 4 5 6 7)\n"
                    "  (time-to-acquire 2.5)\n"
                    "  (check-maximum-speed-to-acquire false)\n"
                    "  (max-speed-of-target 11.0)\n"
                    "  (check-elevation-angle-to-acquire true)\n"
                    "  (max-elevation-angle-to-acquire 0.5)\n"
                    "  (check-elevation-to-acquire true)\n"
                    "  (max-elevation-to-acquire 750.0))\n");
    AxTargetAcquireCriteria again("c", nullptr);
    readFrom(again, text);
    EXPECT_EQ(again.entityType(), AxEntityType(1, 2, 3, 4, 5, 6, 7));
    EXPECT_EQ(again.timeToAcquire(), 2.5);
    EXPECT_FALSE(again.checkSpeed());
    EXPECT_EQ(again.maxTargetSpeedToAcquire(), 11.0);
    EXPECT_TRUE(again.checkAngleToTarget());
    EXPECT_EQ(again.maxElevAngleToAcquire(), 0.5);
    EXPECT_TRUE(again.checkElevation());
    EXPECT_EQ(again.maxElevToAcquire(), 750.0);
}
