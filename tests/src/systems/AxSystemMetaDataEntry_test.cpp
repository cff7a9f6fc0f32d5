#include "AxDefaultSystemMetaDataEntryFactory.h"
#include "AxDetectObjectTypesMetaDataEntry.h"
#include "AxDetectedObjectsMetaDataEntry.h"
#include "AxSoilFactorsMetaDataEntry.h"
#include "AxSystemMetaDataEntryList.h"
#include "AxTargetSelectionMetaDataEntry.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{
struct EntryKind
{
    char const* type;
    char const* written; // of a new entry
    char const* changed;
} const theEntryKinds[] = {
    {"target-selection",
     "(target-selection\n"
     "  (target-selection-criteria\n"
     "    (max-targets -1)\n"
     "    (fire-with-spot-report-only false))\n"
     "  (target-input-port-name \"target-list\"))\n",
     "(target-selection\n"
     "  (target-selection-criteria\n"
     "    (max-targets 2)\n"
     "    (fire-with-spot-report-only false))\n"
     "  (target-input-port-name \"target-list\"))\n"},
    {"detect-object-types-input",
     "(detect-object-types-input\n  (detect-object-types-input-port-name \"object-types-to-detect\"))\n",
     "(detect-object-types-input\n  (detect-object-types-input-port-name \"other\"))\n"},
    {"detected-objects-output",
     "(detected-objects-output\n  (detected-objects-output-port-name \"detected-objects\"))\n",
     "(detected-objects-output\n  (detected-objects-output-port-name \"other\"))\n"},
    {"soil-factors", "(soil-factors)\n",
     "(soil-factors\n  (soil-list\n    (soil-factors\n      (soil-type \"mud\")\n      (max-speed-factor 0.35))))\n"},
};
} // namespace

TEST(AxSystemMetaDataEntry, FactoryKnowsTheKindsInOrder)
{
    std::unique_ptr<AxDefaultSystemMetaDataEntryFactory> const own(AxDefaultSystemMetaDataEntryFactory::create());
    AxDefaultSystemMetaDataEntryFactory empty;
    EXPECT_TRUE(empty.keys().empty());
    std::list<AxString> expected;
    for (EntryKind const& kind : theEntryKinds)
    {
        expected.emplace_back(kind.type);
    }
    EXPECT_EQ(own->keys(), expected);
    EXPECT_EQ(AxSystemMetaDataEntry::factory()->keys(), expected);
    EXPECT_EQ(AxSystemMetaDataEntry::createMetaDataEntry("soil-factor"), nullptr);
}

TEST(AxSystemMetaDataEntry, EveryKindWritesItsDefaultsRoundTripsAndClones)
{
    for (EntryKind const& kind : theEntryKinds)
    {
        std::unique_ptr<AxSystemMetaDataEntry> const entry(AxSystemMetaDataEntry::createMetaDataEntry(kind.type));
        ASSERT_NE(entry, nullptr) << kind.type;
        EXPECT_EQ(entry->entryType(), AxString(kind.type));
        EXPECT_EQ(entry->writtenText(), kind.written);
        std::unique_ptr<AxSystemMetaDataEntry> const clone(entry->clone());
        EXPECT_TRUE(clone->compare(*entry));
        readFrom(*entry, kind.changed);
        EXPECT_EQ(entry->writtenText(), kind.changed);
        EXPECT_FALSE(clone->compare(*entry)) << kind.type;
        std::unique_ptr<AxSystemMetaDataEntry> const again(entry->clone());
        EXPECT_EQ(again->writtenText(), kind.changed);
        EXPECT_EQ(again->name(), AxString(kind.type));
        EXPECT_TRUE(again->compare(*entry));
    }
}

TEST(AxSystemMetaDataEntry, EqualCriteriaBehindAnotherPortDiffer)
{
    AxTargetSelectionMetaDataEntry const a("a", nullptr);
    AxTargetSelectionMetaDataEntry b(a);
    EXPECT_TRUE(a.compare(b));
    b.setTargetInputPortName("spare");
    EXPECT_FALSE(a.compare(b));
    b = a;
    EXPECT_EQ(b.targetInputPortName(), "target-list");
    EXPECT_FALSE(a.equals(AxDetectedObjectsMetaDataEntry("a", nullptr)));
}

TEST(AxSystemMetaDataEntryList, HoldsAllKindsInOrder)
{
    std::string text = "(meta-data-entry-list";
    for (EntryKind const& kind : theEntryKinds)
    {
        text += kind.changed;
    }
    AxSystemMetaDataEntryList list("meta-data-entry-list", nullptr);
    readFrom(list, text + ')');
    EXPECT_EQ(list.count(), 4);
    AxSystemMetaDataEntryList copy(list);
    EXPECT_TRUE(copy == list);
    EXPECT_EQ(copy.writtenText(), list.writtenText());
    auto* const second = dynamic_cast<AxDetectObjectTypesMetaDataEntry*>(*++copy.begin());
    ASSERT_NE(second, nullptr);
    second->setDetectObjectTypesInputPortName("third");
    EXPECT_FALSE(copy == list);
}
