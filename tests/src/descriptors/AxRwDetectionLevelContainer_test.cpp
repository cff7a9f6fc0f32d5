#include "AxRwDetectionLevelContainer.h"

#include "AxPrbRangeTableEntry.h"
#include "platform/zedutil/Reading.h"

#include <cmath>
#include <gtest/gtest.h>

namespace
{
using Level = AxDetectionLevel;

constexpr Level theLevels[] = {Level::None, Level::Detected, Level::Classified, Level::Recognized, Level::Identified};
} // namespace

TEST(AxDetectionLevel, EachLevelHasItsWordAndNoOtherWordIsOne)
{
    for (Level const level : theLevels)
    {
        bool found = false;
        EXPECT_EQ(axDetectionLevel(axDetectionLevelWord(level), &found), level);
        EXPECT_TRUE(found);
    }
    for (char const* word : {"", "Detected", "detecte", "detected "})
    {
        bool found = true;
        EXPECT_EQ(axDetectionLevel(word, &found), Level::None) << word;
        EXPECT_FALSE(found) << word;
    }
    EXPECT_STREQ(axDetectionLevelWord(Level(5)), "");
    EXPECT_STREQ(axDetectionLevelWord(Level(-1)), "");
}

TEST(AxRwDetectionLevelContainer, TheHighestThresholdThatIsReachedCounts)
{
    struct
    {
        char const* thresholds;
        double signal;
        Level level;
    } const cases[] = {
        {"", 0.0, Level::None},
        {"", -1.0, Level::None},
        {"", 1e-9, Level::Identified},
        {"", NAN, Level::None},
        {"(detected 0.2) (recognized 1.0) (identified 3.0)", 0.19, Level::None},
        {"(detected 0.2) (recognized 1.0) (identified 3.0)", 0.2, Level::Detected},
        {"(detected 0.2) (recognized 1.0) (identified 3.0)", 0.99, Level::Detected},
        {"(detected 0.2) (recognized 1.0) (identified 3.0)", 2.0, Level::Recognized},
        {"(detected 0.2) (recognized 1.0) (identified 3.0)", INFINITY, Level::Identified},
        {"(detected 0.2) (recognized 1.0) (identified 3.0)", NAN, Level::None},
        {"(detected 5.0) (classified 1.0)", 2.0, Level::Classified}, // thresholds out of order
        {"(detected 0.0)", 0.0, Level::Detected},
        {"(glimpsed 0.1)", 2.0, Level::None}, // no level's word
    };
    for (auto const& [thresholds, signal, level] : cases)
    {
        AxRwDetectionLevelContainer container("levels", nullptr);
        readFrom(container, std::string("(levels (level-thresholds ") + thresholds + "))");
        EXPECT_EQ(container.level(signal), level) << thresholds << " at " << signal;
    }
}

TEST(AxRwDetectionLevelContainer, TakesItsTableFromTheFileAndWritesTheNameAlone)
{
    AxRwDetectionLevelContainer container("levels", nullptr);
    AxFilenameList const force{AxFilename(ZEDOBJPARAM_SOURCE_DIR "/examples/force")};
    ASSERT_TRUE(readFrom(container, "(levels (detection-table-file \"detection/day-sight.det\"))", {}, force));
    AxPrbRangeTableEntry row;
    ASSERT_TRUE(container.detectionTable().getProbabilities(AxEntityType(1, 1, 225, 1, 1, 3, 0), 1000.0, &row));
    EXPECT_EQ(row.probability(axDetectionLevelWord(Level::Detected)), 0.8);
    EXPECT_EQ(row.probability(axDetectionLevelWord(Level::Identified)), 0.2);
    char const* const text = "(levels\n  (detection-table-file \"detection/day-sight.det\"))\n";
    EXPECT_EQ(container.writtenText(), text);
    EXPECT_EQ(container.writtenText(true).find("entity-range"), std::string::npos);

    AxRwDetectionLevelContainer copy("levels", nullptr);
    copy = container;
    EXPECT_EQ(copy.writtenText(), text);
    EXPECT_EQ(copy.detectionTable().count(), container.detectionTable().count());
    copy.setDetectionTableFile(AxFilename());
    EXPECT_NE(copy.writtenText().find("entity-range"), std::string::npos);
    EXPECT_EQ(container.writtenText(), text);
}
