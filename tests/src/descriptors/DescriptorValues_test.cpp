#include "Ax1DRegularTableFn.h"
#include "AxActiveSonarSystemEntry.h"
#include "AxAggregatedMovementDescriptor.h"
#include "AxAmmoSelectTable.h"
#include "AxEmitterSystemEntry.h"
#include "AxNLengthRealVector.h"
#include "AxRwDetectionLevelContainer.h"
#include "AxRwEntityType.h"
#include "AxRwEnum.h"
#include "AxRwJoystickControl.h"
#include "AxRwNLengthStringVector.h"
#include "AxRwObjectTypeList.h"
#include "AxRwProperties.h"
#include "AxRwSoilSpeedFactorList.h"
#include "AxRwSpotReportDeltaCheckList.h"
#include "AxRwStringList.h"
#include "AxRwTaitBryan.h"
#include "AxSensorFieldOfViewEntry.h"
#include "AxSoilList.h"
#include "AxTargetSelectionCriteria.h"
#include "AxlFunctions.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>
#include <memory>

namespace
{
struct ValueCase
{
    char const* kind;
    std::unique_ptr<AxReaderWriter> (*make)();
    char const* text;  ///< every keyword, as written
    char const* other; ///< differs in the last value only
};

template <class T>
std::unique_ptr<AxReaderWriter> madeValue()
{
    return std::make_unique<T>("x", nullptr);
}

ValueCase const theValues[] = {
    {"emitter beam", madeValue<AxEmitterBeamEntry>,
     "(x\n  (beam-number 2)\n  (beam-parameter-index 7)\n  (beam-function 4)\n  (radar-mode \"track\")\n"
     "  (frequency 9400000000.0)\n  (frequency-range 5000000.0)\n  (effective-radiated-power 90.0)\n"
     "  (pulse-repetition-frequency 2500.0)\n  (pulse-width 1.5)\n  (azimuth-center 0.1)\n  (azimuth-sweep 3.14159)\n"
     "  (elevation-center 0.2)\n  (elevation-sweep 0.3)\n  (sweep-sync 50.0)\n  (jamming-technique 3))\n",
     "(x (beam-number 2) (beam-parameter-index 7) (beam-function 4) (radar-mode \"track\") (frequency 9.4e9)"
     " (frequency-range 5e6) (effective-radiated-power 90) (pulse-repetition-frequency 2500) (pulse-width 1.5)"
     " (azimuth-center 0.1) (azimuth-sweep 3.14159) (elevation-center 0.2) (elevation-sweep 0.3) (sweep-sync 50)"
     " (jamming-technique 4))"},
    {"emitter", madeValue<AxEmitterSystemEntry>,
     "(x\n  (emitter-name 35)\n  (emitter-function 2)\n  (emitter-number 1)\n  (location 1.0 0.0 -2.0)\n  (beams\n"
     "    (beam\n      (beam-function 1))\n    (beam\n      (beam-function 4))))\n",
     "(x (emitter-name 35) (emitter-function 2) (emitter-number 1) (location 1.0 0.0 -2.0) (beams"
     " (beam (beam-function 1)) (beam (beam-function 7))))"},
    {"sonar", madeValue<AxActiveSonarSystemEntry>,
     "(x\n  (acoustic-name 3)\n  (acoustic-function 1)\n  (location 40.0 0.0 6.0)\n  (beams\n    (beam\n"
     "      (parameter-index 5)\n      (scan-pattern 1)\n      (azimuth-center 0.5)\n      (azimuth-width 6.2832)\n"
     "      (elevation-center -0.1)\n      (elevation-width 0.35))))\n",
     "(x (acoustic-name 3) (acoustic-function 1) (location 40.0 0.0 6.0) (beams (beam (parameter-index 5)"
     " (scan-pattern 1) (azimuth-center 0.5) (azimuth-width 6.2832) (elevation-center -0.1) (elevation-width 0.3))))"},
    {"field of view", madeValue<AxSensorFieldOfViewEntry>,
     "(x\n  (azimuth 0.5)\n  (azimuth-width 1.0472)\n  (elevation 0.1)\n  (elevation-width 0.3491)\n"
     "  (range 4000.0))\n",
     "(x (azimuth 0.5) (azimuth-width 1.0472) (elevation 0.1) (elevation-width 0.3491))"},
    {"detection levels", madeValue<AxRwDetectionLevelContainer>,
     "(x\n  (detection-table\n    (entity-range\n      (entity-type 1 1 -1 -1 -1 -1 -1)\n      (range-determinant\n"
     "        (range-list\n          (range-entry 800.0 (detected 0.95))))))\n"
     "  (level-thresholds (\"detected\" 0.2) (\"identified\" 3.0)))\n",
     "(x (detection-table (entity-range (entity-type 1 1 -1 -1 -1 -1 -1) (range-determinant (range-list"
     " (range-entry 800.0 (detected 0.95)))))) (level-thresholds (detected 0.2) (identified 2.0)))"},
    {"report deltas", madeValue<AxRwSpotReportDeltaCheckList>,
     "(x\n  (delta-check\n    (object-type 1 1 2 -1 -1 -1 -1 -1)\n    (delta 2000.0)))\n",
     "(x (delta-check (object-type 1 1 2 -1 -1 -1 -1 -1) (delta 1000.0)))"},
    {"soil factors", madeValue<AxRwSoilSpeedFactorList>, "(x (\"mud\" 0.4) (\"sand\" 0.7))\n",
     "(x (mud 0.4) (sand 0.6))"},
    {"joystick control", madeValue<AxRwJoystickControl>,
     "(x\n  (axis 2)\n  (button 0)\n  (inverted true)\n  (dead-zone 0.1)\n  (scale 2.0))\n",
     "(x (axis 2) (button 0) (inverted true) (dead-zone 0.1) (scale 1.5))"},
    {"mobility entry", madeValue<AxAggregatedMovementDescriptor::MobilityEntry>,
     "(x\n  (terrain-type \"swamp\")\n  (speed-factor 0.2))\n", "(x (terrain-type \"swamp\") (speed-factor 0.3))"},
};

/// Binds a member of each kind that the catalogue uses in the one way it does.
class EveryKind : public AxRecordOf<EveryKind, "EveryKind">
{
public:
    using AxRecordOf::AxRecordOf;

    AxRwReal real{{"real", "m", "A real."}, 1.5, registry()};
    AxRwInt number{{"int", "", "A number.", {0.0, 5.0}}, -1, registry()};
    AxRwUnsigned positive{{"unsigned", "", "A positive number."}, 3, registry()};
    AxRwBoolean flag{{"boolean", "", "A truth value."}, true, registry()};
    AxRwString word{{"string", "", "A text."}, "ground", registry()};
    AxRwEnum<AxDetectionLevel> level{{"level", "", "A level."}, AxDetectionLevel::Detected, registry()};
    AxRwVector vector{{"vector", "m", "A place."}, {1.0, 2.0, 3.0}, registry()};
    AxRwOffsetVector offset{{"offset", "m", "A place on a body."}, {0.0, -1.0, 0.0}, registry()};
    AxRwTaitBryan orientation{{"orientation", "rad", "An orientation."}, {0.1, 0.2, 0.3}, registry()};
    AxRwEntityType entityType{{"entity-type", "", "A type."}, {1, 1, 225, 0, 0, 0, 0}, registry()};
    AxRwObjectType objectType{{"object-type", "", "A type."}, {1, 1, 225, 0, 0, 0, 0, 1}, registry()};
    AxRwObjectTypeList objectTypes{{"object-types", "", "Types."}, registry()};
    AxRwStringList strings{{"strings", "", "Texts."}, registry()};
    AxRwNLengthStringVector texts{{"texts", "", "Texts."}, registry()};
    AxNLengthRealVector reals{{"reals", "", "Reals."}, registry()};
    AxRwRealAttributeList attributes{{"attributes", "", "Named reals."}, registry()};
    Ax1DRegularTableFn function{{"function", "", "A function."}, registry()};
    AxRwProperties properties{{"properties", "", "Free values."}, registry()};
    AxAmmoSelectTable ammunition{{"ammunition", "", "A table."}, registry()};
    AxRangeProbabilityTable probabilities{{"probabilities", "", "A table."}, registry()};
    AxTargetSelectionCriteria targets{{"targets", "", "Criteria."}, registry()};
    AxRwSpatialFilterContainer region{{"region", "", "A region."}, registry()};
    AxReaderWriterFile file{{"file", "", "A file."}, registry()};
    AxSoilList soils{{"soils", "", "Soils."}, registry()};
    AxEmitterSystemEntry emitter{{"emitter", "", "An emitter."}, registry()};
    AxActiveSonarSystemEntry sonar{{"sonar", "", "A sonar."}, registry()};
    AxSensorFieldOfViewEntry view{{"view", "", "A field of view."}, registry()};
    AxRwDetectionLevelContainer levels{{"levels", "", "Levels."}, registry()};
    AxRwSpotReportDeltaCheckList deltas{{"deltas", "", "Deltas."}, registry()};
    AxRwSoilSpeedFactorList soilSpeeds{{"soil-speeds", "", "Factors."}, registry()};
};

AxObjectType tank(int country)
{
    return {1, 1, country, 1, 1, 0, 0, 1};
}
} // namespace

TEST(DescriptorValues, RoundTripCopyCompareAndReset)
{
    for (ValueCase const& test : theValues)
    {
        std::unique_ptr<AxReaderWriter> const value = test.make();
        std::unique_ptr<AxReaderWriter> const other = test.make();
        EXPECT_EQ(value->writtenText(), "(x)\n") << test.kind;
        EXPECT_TRUE(AxReaderWriterFactory::equalByType(*value, *other)) << test.kind;
        ASSERT_TRUE(readFrom(*value, test.text)) << test.kind;
        EXPECT_EQ(value->writtenText(), test.text) << test.kind;
        ASSERT_TRUE(readFrom(*other, test.other)) << test.kind;
        EXPECT_TRUE(other->keptItems().empty()) << test.kind;
        EXPECT_FALSE(AxReaderWriterFactory::equalByType(*value, *other)) << test.kind;
        EXPECT_TRUE(AxReaderWriterFactory::copyByType(*other, *value)) << test.kind;
        EXPECT_TRUE(AxReaderWriterFactory::equalByType(*value, *other)) << test.kind;
        EXPECT_EQ(other->writtenText(), test.text) << test.kind;
        other->reset();
        EXPECT_EQ(other->writtenText(), "(x)\n") << test.kind;
    }
}

TEST(DescriptorValues, CellsAndTreesHoldWhatTheTextHolds)
{
    for (ValueCase const& test : theValues)
    {
        std::unique_ptr<AxReaderWriter> const byCells = test.make();
        AxlInputStream stream(test.text);
        byCells->getSelf(AxcRead(stream), AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
        EXPECT_EQ(byCells->writtenText(), test.text) << test.kind;
        std::unique_ptr<AxReaderWriter> const byTree = test.make();
        EXPECT_TRUE(byTree->fromXml(byCells->toXml())) << test.kind;
        EXPECT_EQ(byTree->writtenText(), test.text) << test.kind;
    }
}

TEST(DescriptorValues, EveryKindIsBoundByItsKeywordAndWritesItsDefault)
{
    EveryKind const record("x", nullptr);
    EveryKind same("x", nullptr);
    ReportedFindings findings;
    ASSERT_TRUE(readFrom(same, record.writtenText(true)));
    EXPECT_EQ(findings.codes(), "");
    EXPECT_EQ(same.writtenText(true), record.writtenText(true));
    EXPECT_TRUE(same == record);
    same.reset();
    EXPECT_EQ(same.level.value(), AxDetectionLevel::Detected);
    EXPECT_EQ(same.offset.value(), AxVector64(0.0, -1.0, 0.0));
    EXPECT_EQ(same.positive.value(), 3U);
    EXPECT_STREQ(same.emitter.description()->help, "An emitter.");
}

TEST(AxSensorFieldOfViewEntry, IsAQuarterWideAndAnEighthHighUnlessTold)
{
    AxSensorFieldOfViewEntry const view("view", nullptr);
    EXPECT_EQ(view.azimuthWidth(), std::numbers::pi / 2.0);
    EXPECT_EQ(view.elevationWidth(), std::numbers::pi / 4.0);
    EXPECT_EQ(view.range(), 0.0);
}

TEST(AxEmitterSystemEntry, NamesTheBeamsThatAreAdded)
{
    AxEmitterSystemEntry emitter("emitter-system", nullptr);
    AxEmitterBeamEntry beam;
    beam.setRadarMode("search");
    emitter.beams().add(beam);
    EXPECT_EQ(emitter.writtenText(), "(emitter-system\n  (beams\n    (beam\n      (radar-mode \"search\"))))\n");
}

TEST(AxRwSpotReportDeltaCheckList, AnExactTypeAnswersElseTheLastPatternThatFits)
{
    AxRwSpotReportDeltaCheckList checks("deltas", nullptr);
    bool found = true;
    EXPECT_EQ(checks.delta(tank(225), &found), 0.0);
    EXPECT_FALSE(found);
    readFrom(checks, "(deltas (delta-check (object-type 1 1 1 222 1 1 0 0) (delta 4.0))"
                     " (delta-check (object-type -1 1 -1 -1 -1 -1 -1 -1) (delta 1.0))"
                     " (delta-check (object-type 1 1 1 225 -1 -1 -1 -1) (delta 2.0))"
                     " (delta-check (object-type 1 1 1 222 -1 -1 -1 -1) (delta 3.0))"
                     " (delta-check (object-type 1 1 1 222 1 1 0 0) (delta 5.0)))");
    EXPECT_EQ(checks.delta(tank(225)), 2.0);
    EXPECT_EQ(checks.delta(tank(222), &found), 4.0);
    EXPECT_TRUE(found);
    EXPECT_EQ(checks.delta(tank(71)), 1.0);
    EXPECT_EQ(checks.delta(AxObjectType(2, 1, 0, 0, 0, 0, 0, 1), &found), 0.0);
    EXPECT_FALSE(found);
}

TEST(AxRwSoilSpeedFactorList, FallsBackToTheDefaultEntryThenToOne)
{
    AxRwSoilSpeedFactorList factors("factors", nullptr);
    factors.set("mud", 0.0);
    EXPECT_EQ(factors.speedFactor("mud"), 0.0);
    EXPECT_EQ(factors.speedFactor("sand"), 1.0);
    factors.set("default", 0.9);
    EXPECT_EQ(factors.speedFactor("sand"), 0.9);
}
