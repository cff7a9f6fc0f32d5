#include "AxDummyParameters.h"
#include "AxEmbarkationSlotEntry.h"
#include "AxLoadPoint.h"
#include "AxMunitionResource.h"
#include "AxRadioDescriptor.h"
#include "AxReaderWriterFactory.h"
#include "AxRwAutoConnection.h"
#include "AxRwMimeCharacterInfo.h"
#include "AxZedStateRepositoryUserExtensionFactory.h"
#include "RecordFixture.h"

namespace
{
struct PartCase
{
    char const* kind;
    AxReaderWriter* (*make)();
    char const* text; ///< every keyword, in order
};

template <class T>
constexpr AxReaderWriter* (*maker)() = []() -> AxReaderWriter* { return new T("x", nullptr); };

PartCase const theParts[] = {
    {"navigation", maker<AxRwNavigationParameters>,
     "(clearance-radius 2.5) (max-step-height 0.6) (max-water-depth 1.2) (avoid-feature-types \"river\" \"wood\")"},
    {"thresholds", maker<AxRwDeadReckonThresholds>, "(translation 0.5) (rotation 2.0) (aggregate-dimension 0.1)"},
    {"character", maker<AxRwMimeCharacterInfo>, "(character \"rifleman\") (animation-set \"infantry\")"},
    {"radio", maker<AxRadioDescriptor>,
     "(radio-type 7 1 225 1 1 0 0) (radio-id 2) (frequency 4.5) (bandwidth 1.0) (power 46.0) (modulation-major 1)"
     " (modulation-detail 2) (modulation-system 3) (crypto-system 4) (crypto-key 5) (antenna-offset 1.0 2.0 3.0)"
     " (comm-models)"},
    {"rule", maker<AxRwAutoConnection>, "(output \"o\") (input \"i\") (output-category \"a\") (input-category \"b\")"},
    {"load point", maker<AxLoadPoint>,
     "(load-point-name \"ramp\") (offset -3.5 0.0 0.0) (heading 3.14159) (radius 1.5)"},
    {"slot", maker<AxEmbarkationSlotEntry>,
     "(slot-name \"bench\") (offset -1.2 -0.6 -1.0) (orientation 1.5 0.0 0.0) (object-types (1 3 1 -1 -1 -1 -1 -1))"
     " (load-points \"ramp\") (slot-exclusions\n    (slot-exclusion\n      (slot-name \"cargo\")))"},
    {"sector", maker<AxSimSector>, "(sector-center 0.5) (sector-size 1.5)"},
    {"rules", maker<AxTaskExecutionRules>,
     "(all-tasks-exclusive true) (mutually-exclusive-task-groups\n    (task-group\n      (group-name \"movement\")"
     "\n      (task-names \"move-to\" \"follow\")))"},
    {"sub-components", maker<AxZedObjectSubComponentTypes>,
     "(state-repository \"a\") (state-repository-min-tick-period 1.0) (state-repository-min-tick-period-variance 2.0)"
     " (net-interface \"b\") (net-interface-min-tick-period 3.0) (net-interface-min-tick-period-variance 4.0)"
     " (task-manager \"c\") (component-manager \"d\") (plan-manager \"e\") (nav-interface \"f\")"},
    {"sub-object", maker<AxZedSubObjectParameterEntry>,
     "(object-type 1 1 1 225 1 1 3 0) (offset 1.0 2.0 3.0) (orientation 0.1 0.2 0.3) (attached-part \"turret\")"
     " (parameter-data\n    (callsign AxRwString \"Red 2\"))"},
};

/// Items one to a line.
std::string layout(std::string items)
{
    for (std::size_t at = items.find(") ("); at != std::string::npos; at = items.find(") (", at))
    {
        items.replace(at, 3, ")\n  (");
    }
    return "(x\n  " + items + ")\n";
}
} // namespace

TEST(RecordValues, RoundTripsCopiesAndSilence)
{
    for (PartCase const& test : theParts)
    {
        std::unique_ptr<AxReaderWriter> const value(test.make());
        std::unique_ptr<AxReaderWriter> const other(test.make());
        EXPECT_EQ(value->writtenText(), "(x)\n") << test.kind;
        EXPECT_TRUE(AxReaderWriterFactory::equalByType(*value, *other)) << test.kind;
        ASSERT_TRUE(readFrom(*value, layout(test.text))) << test.kind;
        EXPECT_EQ(value->writtenText(), layout(test.text)) << test.kind;
        EXPECT_EQ(value->writtenText(true), layout(test.text)) << test.kind;
        EXPECT_FALSE(AxReaderWriterFactory::equalByType(*value, *other)) << test.kind;
        EXPECT_TRUE(AxReaderWriterFactory::copyByType(*other, *value));
        EXPECT_TRUE(AxReaderWriterFactory::equalByType(*value, *other)) << test.kind;
        EXPECT_EQ(other->writtenText(), value->writtenText()) << test.kind;
        other->reset();
        EXPECT_EQ(other->writtenText(), "(x)\n") << test.kind;
    }
}

TEST(AxRwDeadReckonThresholds, EmptyTextLeavesTheDefaults)
{
    AxRwDeadReckonThresholds thresholds("dr-thresholds", nullptr);
    readFrom(thresholds, "(dr-thresholds)");
    EXPECT_EQ(thresholds.translationThreshold(), 1.0);
    EXPECT_EQ(thresholds.rotationThreshold(), 3.0);
    EXPECT_EQ(thresholds.aggregateDimensionThreshold(), 0.05);
    thresholds.setTranlationThreshold(2.0);
    AxRwDeadReckonThresholds const copy("other", thresholds, nullptr);
    EXPECT_TRUE(copy == thresholds);
    EXPECT_EQ(copy.name(), "other");
}

TEST(AxZedObjectSubComponentTypes, PeriodsNotGivenAreNegative)
{
    AxZedObjectSubComponentTypes const types;
    EXPECT_EQ(types.simStateRepositoryType(), "");
    for (double period : {types.stateRepMinTickPeriod(), types.stateRepMinTickPeriodVariance(),
                          types.netIfMinTickPeriod(), types.netIfMinTickPeriodVariance()})
    {
        EXPECT_EQ(period, -1.0);
    }
}

TEST(AxTaskExecutionRules, FindsGroupsByNameAndTask)
{
    AxTaskExecutionRules rules("r", nullptr);
    readFrom(rules, "(r (mutually-exclusive-task-groups (task-group (group-name \"a\") (task-names \"x\" \"y\"))"
                    " (task-group (group-name \"b\") (task-names \"y\")) (task-group (group-name \"a\"))))");
    ASSERT_NE(rules.findTaskGroup("a"), nullptr);
    EXPECT_EQ(rules.findTaskGroup("a")->taskNames().size(), 2U);
    EXPECT_EQ(rules.findTaskGroup("c"), nullptr);
    EXPECT_EQ(rules.findGroupsForTask("y"), (std::list<AxString>{"a", "b"}));
    EXPECT_TRUE(rules.findGroupsForTask("z").empty());
    AxTaskExecutionRules const copy(rules);
    EXPECT_EQ(copy.writtenText(), rules.writtenText());
}

TEST(AxRwSensorSignatureList, UnlistedDomainIsZero)
{
    AxRwSensorSignatureList signatures("sensor-signatures", nullptr);
    signatures.setSignature("visual", 1.5);
    EXPECT_EQ(signatures.signature("visual"), 1.5);
    EXPECT_EQ(signatures.signature("radar"), 0.0);
    EXPECT_EQ(signatures.writtenText(), "(sensor-signatures (\"visual\" 1.5))\n");
}

TEST(AxDummyParameters, KeepsOnlyTheTypeOfAnyRecord)
{
    AxSinkScope warnings(AxWarn);
    AxDummyParameters dummy("x", nullptr);
    EXPECT_TRUE(readFrom(dummy, "(x (mass 5.0) (nonsense) 7 (parameter-type \"human-param\") (sensors (eye)))"));
    EXPECT_EQ(dummy.parameterType(), "human-param");
    AxDummyParameters none("x", nullptr);
    EXPECT_TRUE(readFrom(none, "(x (mass 5.0))"));
    EXPECT_EQ(none.parameterType(), "");
    EXPECT_EQ(warnings.text(), "");
}

TEST(AxZedStateRepositoryUserExtension, FactoryKnowsTheBaseTypeOnly)
{
    AxZedStateRepositoryUserExtensionFactory const factory;
    std::unique_ptr<AxZedStateRepositoryUserExtension> const made(
        factory.create("default-zed-state-repository-user-extension"));
    ASSERT_TRUE(made);
    EXPECT_EQ(made->type(), AxZedStateRepositoryUserExtension::baseType());
    EXPECT_EQ(made->scriptObjectKinds().size(), 5U);
    EXPECT_EQ(made->scriptObjectKinds().front(), "ScriptZedObject");
    EXPECT_EQ(factory.create("other"), nullptr);
}
