#include "AxZedReaderWriterFactory.h"

#include "AxReaderWriter.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>
#include <memory>

namespace
{
struct ClassRow
{
    char const* type;
    char const* xmlType; // empty for lists that have none
    bool isPresent;
};

constexpr ClassRow theRows[] = {
    {"AxTargetPriorityList", "list", true},
    {"AxTargetPriorityEntry", "readerWriter", true},
    {"AxRwResourceManagerType", "list", true},
    {"integer-resource", "readerWriter", true},
    {"real-resource", "readerWriter", true},
    {"munition-resource", "readerWriter", true},
    {"AxLoadPoint", "loadPoint", true},
    {"loadPoints", "", true},
    {"embarkationSlots", "", true},
    {"AxDmgMunitionTable", "list", true},
    {"AxEmbarkationSlotEntry", "embarkationSlot", true},
    {"AxZedSubObjectParameterEntry", "AxZedSubObjectParameterEntry", true},
    {"AxZedSubObjectParameterList", "AxZedSubObjectParameterList", true},
    {"AxFormationTableEntry", "AxFormationTableEntry", true},
    {"AxFormationTable", "AxFormationTable", true},
    {"slotExclusions", "", true},
    {"AxSlotExclusion", "slotExclusion", true},
    {"target-selection-criteria", "readerWriter", true},
    {"readerWriters", "", true},
    {"AxAggregatedMovementDescriptor_MobilityEntrys", "", true},
    {"AxAggregatedMovementDescriptor_MobilityEntry", "AxAggregatedMovementDescriptor_MobilityEntry", true},
};
} // namespace

TEST(AxZedReaderWriterFactory, KnowsExactlyThePresentTypes)
{
    AxZedReaderWriterFactory factory;
    for (auto const& [type, xmlType, isPresent] : theRows)
    {
        EXPECT_EQ(factory.knowsType(type), isPresent) << type;
        std::unique_ptr<AxReaderWriter> const made(factory.createItem(type, "item", nullptr));
        EXPECT_EQ(made != nullptr, isPresent) << type;
        if (made)
        {
            EXPECT_EQ(made->name(), "item");
            EXPECT_EQ(factory.mapRwToXmlType(type), xmlType);
        }
    }
    EXPECT_FALSE(factory.createItem("no-such-type", "item", nullptr));
}

TEST(AxZedReaderWriterFactory, CopiesWhatItCreates)
{
    AxZedReaderWriterFactory factory;
    for (ClassRow const& row : theRows)
    {
        if (row.isPresent)
        {
            std::unique_ptr<AxReaderWriter> const made(factory.createItem(row.type, "item", nullptr));
            std::unique_ptr<AxReaderWriter> const clone(factory.cloneReaderWriter(row.type, made.get(), nullptr));
            ASSERT_TRUE(clone) << row.type;
            EXPECT_TRUE(factory.compareReaderWriter(made.get(), clone.get())) << row.type;
            EXPECT_EQ(clone->writtenText(true), made->writtenText(true)) << row.type;
        }
    }
}

TEST(AxZedReaderWriterFactory, IsTheLibrarysFactoryFromTheStart)
{
    EXPECT_NE(dynamic_cast<AxZedReaderWriterFactory*>(AxReaderWriter::factory()), nullptr);
}

TEST(AxZedReaderWriterFactory, ListsSurviveReadCloneAndWriteWithWhatTheyDoNotKnow)
{
    std::pair<char const*, char const*> const elements[] = {
        {"AxTargetPriorityList", "(entity-priority\n    (priority 3)\n    (hue 1))"},
        {"AxRwResourceManagerType", "(real-resource\n    (resource-name \"fuel\")\n    (hue 1)\n    (amount 9.0))"},
        {"loadPoints", "(gate\n    (load-point-name \"rear\")\n    (hue 1)\n    (radius 2.5))"},
        {"embarkationSlots", "(bay\n    (slot-name \"left\")\n    (hue 1))"},
        {"AxDmgMunitionTable", "(ammo-entry\n    (hue 1)\n    (suppression-lof-range 5.0))"},
        {"AxZedSubObjectParameterList", "(mine\n    (attached-part \"turret\")\n    (hue 1))"},
        {"AxFormationTable", "(line\n    (formation-type \"line\")\n    (hue 1))"},
        {"slotExclusions", "(left\n    (slot-name \"right\")\n    (hue 1))"},
        {"readerWriters", "(AxRwReal 1.5)\n  (AxRwInt 2)"},
        {"AxAggregatedMovementDescriptor_MobilityEntrys",
         "(mobility-entry\n    (terrain-type \"road\")\n    (hue 1)\n    (speed-factor 0.5))"},
    };
    ReportedFindings const quiet;
    for (auto const& [type, element] : elements)
    {
        SCOPED_TRACE(type);
        std::unique_ptr<AxReaderWriter> const list(AxReaderWriter::factory()->createItem(type, "x", nullptr));
        std::string const text = std::string("(x\n  ") + element + ")\n";
        readFrom(*list, text);
        EXPECT_EQ(list->writtenText(), text);
        std::unique_ptr<AxReaderWriter> const clone(
            AxReaderWriter::factory()->cloneReaderWriter(type, list.get(), nullptr));
        EXPECT_EQ(clone->writtenText(), text);
    }
}
